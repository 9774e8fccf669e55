<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Zorza</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Wydmy</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Las</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Jezioro</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Grzbiety</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Morze</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>otwiera okno ustawień zamiast wyświetlać cytat</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>włącza uruchamianie programu przy logowaniu i kończy działanie</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>sprawdza wbudowane cytaty i kończy działanie</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>wyświetla tę pomoc i kończy działanie</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>wyświetla wersję i kończy działanie</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Użycie: morrowleaf [OPCJA]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Wita cytatem.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Inne argumenty są pomijane. Więcej zawiera strona podręcznika morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Cytat dnia</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Wita cytatem</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>cytat;sentencja;powitanie;pozdrowienie;wybudzenie;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Edytuj wygląd…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Ustawienia…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Dzień dobry</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Dzień dobry</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Dobry wieczór</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Jeszcze nie śpisz</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc, aby zakończyć</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>naciśnij dowolny klawisz</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Polecenia użytkownika</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>wita cytatem</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SKŁADNIA</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPIS</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf ma ikonę w zasobniku panelu. Po uruchomieniu oraz zawsze, gdy komputer się wybudza, sesja staje się aktywna lub ekran zostaje odblokowany, zakrywa cytatem ekran, na którym się pracuje. Kliknięcie lub klawisz zamyka cytat, który w przeciwnym razie zamyka się sam.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Dopóki magistrala komunikatów sesji nie odpowiada, nie ma ikony, nawet w zasobniku serwera X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Program działa raz na sesję: ponowne uruchomienie sprawia, że działający program wyświetla cytat.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPCJE</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Inne argumenty są pomijane.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Otwiera okno ustawień zamiast wyświetlać cytat.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Rejestruje program do uruchamiania przy logowaniu, wyświetla jeden wiersz z wynikiem i kończy działanie.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sprawdza wbudowany zbiór i jego harmonogram, wyświetla jeden wiersz i kończy działanie. Przywraca to domyślną częstotliwość nowych cytatów.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Wyświetla listę opcji i kończy działanie.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Wyświetla wersję i kończy działanie.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>KOD ZAKOŃCZENIA</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Poproszono program o zakończenie działania albo już działający program otrzymał żądanie. &lt;b&gt;--register-login&lt;/b&gt; i &lt;b&gt;--selftest&lt;/b&gt; zwracają 0, nawet jeśli ich działanie się nie powiodło; mówi o tym wyświetlany przez nie wiersz.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Nie ma ekranu, na którym można wyświetlić cytat, albo ma on za mało kolorów.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ŚRODOWISKO</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Język programu, w tej kolejności. &lt;b&gt;LANGUAGE&lt;/b&gt; może wymieniać kilka języków rozdzielonych dwukropkami; używany jest pierwszy znany programowi. Jeśli nie zna żadnego, program jest po angielsku.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ekran. Jeśli ustawiono oba, Wayland jest używany, jeśli jego kompozytor udostępnia powierzchnie warstw, a w przeciwnym razie X11.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Wybiera system okien, jak w każdym programie Qt. Jeśli nie ustawiono, program wybiera najlepszy dla sesji.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Wybiera sposób wyświetlania cytatu: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (powierzchnia warstwy), &lt;b&gt;xwayland&lt;/b&gt; (okno pełnoekranowe) lub &lt;b&gt;null&lt;/b&gt; (zwykłe okno, które nie narusza pulpitu). Przeznaczone do testów.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Magistrale komunikatów, jeśli nie znajdują się w zwykłych miejscach.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sesja menedżera logowania, której odblokowanie wyświetla cytat. Jeśli nie ustawiono, program znajduje własną.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Środowisko graficzne. KDE i GNOME same nadają kolor ikonie w zasobniku.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Pozwala oknu przejść na wierzch; ustawiane przez środowisko, które uruchamia program.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Katalogi ustawień, wpisów uruchamiających programy przy logowaniu, własnych zdjęć oraz blokady, która zapobiega dwukrotnemu działaniu programu.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Zapisuje na standardowe wyjście błędów to, co jest przekazywane kompozytorowi.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>PLIKI</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ustawienia.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Uruchamia program przy logowaniu.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Własne zdjęcia.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Pamięta, że program już powiedział, jak otworzyć ustawienia.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Katalog tego, co program sam zapamiętuje.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Serwery pośredniczące między programem a źródłem cytatów w sieci oraz komputery, które ich nie potrzebują. Jeśli nie są ustawione, używane są serwery środowiska graficznego.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Certyfikaty, którym program ufa zamiast systemowych.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Włączają kategorie dziennika, zapisywanego na standardowe wyjście błędów: &lt;b&gt;morrowleaf.readers&lt;/b&gt; informuje, kiedy nie odczytano źródła lub zdjęcia, pozostałe to kategorie biblioteki Qt. Jeśli nie włączają żadnej, nic nie jest zapisywane.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Pokaż dzisiejszy cytat</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Edytuj wygląd…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Wita cytatem</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Gdy komputer się wybudza lub zostaje odblokowany, Morrowleaf na chwilę zakrywa ekran: powoli poruszające się tło, powitanie, data i jeden cytat, który pojawia się wiersz po wierszu. Kliknięcie lub klawisz go odsyła.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Dziewięć palet, zdjęcia wbudowane i własne, pięć animacji tekstu</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 wbudowane cytaty albo własne źródło: adres w sieci lub plik</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Nic nie działa, gdy nic nie jest wyświetlane</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Północ</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Żar</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Las</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Śliwka</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Łupek</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Mosiądz</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Fiolet</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>Noir</translation>
    </message>
</context>
<context>
    <name>Readout</name>
    <message>
        <source>%1%</source>
        <extracomment>A percentage; there is room for five characters</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>A number of seconds; there is room for five characters</extracomment>
        <translation>%1&#xa0;s</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>Dryf</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Bezruch</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Oddech</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Zorza</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zbliżanie</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — cytat dnia</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — losowy</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — losowy</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Przenikanie</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Pismo odręczne</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Maszyna do pisania</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Wznoszenie</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Rozmycie</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Dodaj zdjęcie</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Dodaj własne obrazy, najwyżej trzy</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Twoje zdjęcie</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Krój pisma</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Szeryfowy (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Bezszeryfowy (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Zaokrąglony</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Stała szerokość</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Winieta</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Przezroczystość</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Pojawianie się tekstu</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Ruch tła</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Ziarno</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Ziarno filmowe</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf działa</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>To środowisko nie ma zasobnika na ikonę programu. Aby otworzyć ustawienia, kliknij Morrowleaf prawym przyciskiem w menu programów i wybierz „%1” albo uruchom %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>Auto</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Dodaj zdjęcie</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Twoje zdjęcie</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Twoje zdjęcie %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Usuń twoje zdjęcie %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Zachowanie</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Cytaty</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Paleta, krój pisma, rozmiar, winieta i ziarno</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Pokazuj po wybudzeniu i odblokowaniu</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Co %n godzinę</numerusform>
            <numerusform>Co %n godziny</numerusform>
            <numerusform>Co %n godzin</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Za każdym razem</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Nowy cytat</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Otwieraj przy logowaniu</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Zamknij po</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Szablony</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Wbudowana lista</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Pozostaw puste, aby używać %n wbudowanego cytatu</numerusform>
            <numerusform>Pozostaw puste, aby używać %n wbudowanych cytatów</numerusform>
            <numerusform>Pozostaw puste, aby używać %n wbudowanych cytatów</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Adres źródła</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Testowanie…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testuj</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Nadaje się każdy JSON z polem cytatu i polem autora, a także ścieżka do pliku lokalnego. Ostatnio pobrany cytat jest zachowywany, więc pojawia się także bez połączenia.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Nieczytelne ustawienia zachowano w %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>W tym źródle nie znaleziono cytatu.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Ustawienia programu Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Edytuj wygląd</translation>
    </message>
</context>
</TS>
