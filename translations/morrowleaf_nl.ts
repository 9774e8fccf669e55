<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Poollicht</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Duinen</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Woud</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Bergkammen</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Zee</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>het instellingenvenster openen in plaats van het citaat te tonen</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>het programma bij aanmelden laten starten en afsluiten</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>de ingebouwde citaten controleren en afsluiten</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>deze hulp tonen en afsluiten</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>de versie tonen en afsluiten</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Gebruik: morrowleaf [OPTIE]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Begroet u met een citaat.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Andere argumenten worden genegeerd. Meer staat in de manpagina morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Citaat van de dag</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Begroet u met een citaat</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>citaat;spreuk;begroeting;groet;ontwaken;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Uiterlijk bewerken…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Instellingen…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Goedemorgen</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Goedemiddag</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Goedenavond</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Nog wakker</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc om te voltooien</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>druk op een toets</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Gebruikersopdrachten</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>begroet u met een citaat</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SAMENVATTING</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>BESCHRIJVING</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf heeft een pictogram in het systeemvak van het paneel. Wanneer het start, en telkens wanneer de computer ontwaakt, de sessie actief wordt of het scherm wordt ontgrendeld, bedekt het het scherm waarop u werkt met een citaat. Een klik of een toets sluit het citaat, dat anders vanzelf sluit.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Zolang de berichtenbus van de sessie niet antwoordt, is er geen pictogram, ook niet in een systeemvak van de X-server.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Het programma draait één keer per sessie: wordt het nogmaals gestart, dan toont het draaiende programma het citaat.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPTIES</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Andere argumenten worden genegeerd.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Het instellingenvenster openen in plaats van het citaat te tonen.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Het programma registreren om bij het aanmelden te worden gestart, één regel met de uitkomst tonen en afsluiten.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De ingebouwde verzameling en het schema ervan controleren, één regel tonen en afsluiten. Dit stelt de opgeslagen frequentie van nieuwe citaten opnieuw in.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Een lijst van de opties tonen en afsluiten.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De versie tonen en afsluiten.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>AFSLUITSTATUS</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Het programma is gevraagd af te sluiten, of het programma dat al draait heeft het verzoek ontvangen. &lt;b&gt;--register-login&lt;/b&gt; en &lt;b&gt;--selftest&lt;/b&gt; geven 0 terug, ook als wat zij probeerden is mislukt; de regel die zij tonen zegt dat dan.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Er is geen beeldscherm om het citaat op te tonen, of het heeft te weinig kleuren.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OMGEVING</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De taal van het programma, in deze volgorde. &lt;b&gt;LANGUAGE&lt;/b&gt; kan meerdere talen noemen, gescheiden door dubbele punten; de eerste die het programma kent wordt gebruikt. Kent het er geen, dan is het programma in het Engels.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Het beeldscherm. Zijn beide ingesteld, dan wordt Wayland gebruikt als de compositor ervan layer-oppervlakken biedt, en anders X11.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Kiest het venstersysteem, zoals in elk Qt-programma. Is het niet ingesteld, dan kiest het programma het beste voor de sessie.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Kiest de manier waarop het citaat wordt getoond: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (een layer-oppervlak), &lt;b&gt;xwayland&lt;/b&gt; (een schermvullend venster) of &lt;b&gt;null&lt;/b&gt; (een gewoon venster dat het bureaublad met rust laat). Bedoeld voor tests.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De berichtenbussen, als die niet op hun gebruikelijke plaats zijn.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De sessie van het aanmeldbeheer waarvan het ontgrendelen het citaat toont. Is die niet ingesteld, dan vindt het programma zijn eigen sessie.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Het bureaublad. KDE en GNOME kleuren het pictogram in het systeemvak zelf.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Laat het venster naar voren komen; ingesteld door het bureaublad dat het programma start.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De mappen van de instellingen, van de vermeldingen die programma’s bij het aanmelden starten, van uw eigen foto’s en van de vergrendeling die voorkomt dat het programma twee keer draait.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Schrijft naar de standaardfoutuitvoer wat tegen de compositor wordt gezegd.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>BESTANDEN</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De instellingen.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Start het programma bij het aanmelden.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Uw eigen foto’s.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Onthoudt dat het programma heeft verteld hoe u bij de instellingen komt.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De map met wat het programma zelf onthoudt.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De proxy’s tussen het programma en een bron van citaten op het web, en de hosts die er geen nodig hebben. Zijn ze niet ingesteld, dan worden die van het bureaublad gebruikt.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>De certificaten die worden vertrouwd in plaats van die van het systeem.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Schakelen categorieën van het logboek in, dat naar de standaardfoutuitvoer wordt geschreven: &lt;b&gt;morrowleaf.readers&lt;/b&gt; meldt wanneer een bron of een foto niet is gelezen, de andere zijn die van de Qt-bibliotheek. Schakelen ze er geen in, dan wordt er niets gelogd.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Citaat van vandaag tonen</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Uiterlijk bewerken…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Begroet u met een citaat</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Wanneer uw computer ontwaakt of u hem ontgrendelt, bedekt Morrowleaf even het scherm: een langzaam bewegende achtergrond, een begroeting, de datum en één citaat dat regel voor regel verschijnt. Een klik of een toets stuurt het weg.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Negen paletten, ingebouwde foto’s en die van uzelf, vijf tekstanimaties</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 ingebouwde citaten, of een eigen bron: een webadres of een bestand</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Er draait niets zolang er niets wordt getoond</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Gloed</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Woud</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Pruim</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Leisteen</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Messing</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
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
        <translation>Drijven</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Ademen</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Poollicht</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — citaat van de dag</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — willekeurig</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — willekeurig</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Infaden</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Handschrift</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Schrijfmachine</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Opstijgen</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Vervagen</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Een foto toevoegen</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Eigen afbeeldingen toevoegen, hoogstens drie</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Uiterlijk</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palet</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Uw foto</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Met schreef (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Schreefloos (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Afgerond</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Vaste breedte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignet</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparantie</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Verschijnen van de tekst</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Beweging van de achtergrond</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Korrel</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Filmkorrel</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf draait</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Dit bureaublad heeft geen systeemvak voor het pictogram. Klik voor de instellingen met de rechtermuisknop op Morrowleaf in het programmamenu en kies “%1”, of voer %2 uit.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Palet</translation>
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
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Een foto toevoegen</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Uw foto</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Uw foto %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Uw foto %1 verwijderen</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Uiterlijk</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Gedrag</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Citaten</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Palet, lettertype, grootte, vignet en korrel</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Tonen bij ontwaken en ontgrendelen</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Elk uur</numerusform>
            <numerusform>Elke %n uur</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Telkens wanneer het verschijnt</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Nieuw citaat</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Openen bij aanmelden</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Sluiten na</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Sjablonen</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Ingebouwde lijst</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Leeg laten voor het ene ingebouwde citaat</numerusform>
            <numerusform>Leeg laten voor de %n ingebouwde citaten</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Adres van de bron</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Bezig met testen…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Elke JSON met een veld voor het citaat en een voor de auteur is geschikt, evenals het pad van een lokaal bestand. Het laatst geladen citaat wordt bewaard en dus ook zonder verbinding getoond.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Onleesbare instellingen zijn bewaard in %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>Geen citaat gevonden bij die bron.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Instellingen van Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Uiterlijk bewerken</translation>
    </message>
</context>
</TS>
