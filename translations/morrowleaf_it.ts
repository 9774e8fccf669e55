<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Dune</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Bosco</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Lago</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Crinali</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Mare</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>apre la finestra delle impostazioni invece di mostrare la citazione</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>avvia il programma all’accesso ed esce</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>controlla le citazioni incluse ed esce</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>mostra questo aiuto ed esce</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>mostra la versione ed esce</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Uso: morrowleaf [OPZIONE]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Accoglie con una citazione.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Gli altri argomenti sono ignorati. Maggiori informazioni nella pagina di manuale morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Citazione del giorno</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Accoglie con una citazione</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>citazione;frase;saluto;benvenuto;risveglio;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Modifica aspetto…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Impostazioni…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Buongiorno</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Buon pomeriggio</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Buonasera</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Ancora in piedi</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc per terminare</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>premi un tasto qualsiasi</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Comandi utente</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NOME</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>accoglie con una citazione</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SINTASSI</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>DESCRIZIONE</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf ha un’icona nell’area di notifica del pannello. All’avvio, e ogni volta che il computer si riattiva, la sessione diventa attiva o lo schermo viene sbloccato, copre con una citazione lo schermo su cui si lavora. Un clic o un tasto chiude la citazione, che altrimenti si chiude da sola.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Finché il bus dei messaggi della sessione non risponde non c’è alcuna icona, nemmeno in un’area di notifica del server X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Il programma viene eseguito una volta per sessione: avviarlo di nuovo fa mostrare la citazione al programma in esecuzione.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPZIONI</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Gli altri argomenti sono ignorati.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Apre la finestra delle impostazioni invece di mostrare la citazione.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Registra il programma per l’avvio all’accesso, mostra una riga con l’esito ed esce.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Controlla la raccolta inclusa e il suo calendario, mostra una riga ed esce. Questo ripristina la frequenza memorizzata delle nuove citazioni.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mostra un elenco delle opzioni ed esce.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mostra la versione ed esce.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>STATO DI USCITA</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>È stato chiesto al programma di uscire, oppure il programma già in esecuzione ha ricevuto la richiesta. &lt;b&gt;--register-login&lt;/b&gt; e &lt;b&gt;--selftest&lt;/b&gt; restituiscono 0 anche se ciò che hanno tentato non è riuscito; lo dice la riga che mostrano.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Non c’è uno schermo su cui mostrare la citazione, oppure ha troppo pochi colori.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>AMBIENTE</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La lingua del programma, in quest’ordine. &lt;b&gt;LANGUAGE&lt;/b&gt; può elencare più lingue, separate da due punti; si usa la prima che il programma conosce. Se non ne conosce alcuna, il programma è in inglese.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Lo schermo. Se sono impostate entrambe, si usa Wayland se il suo compositore offre superfici layer, altrimenti X11.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sceglie il sistema di finestre, come in ogni programma Qt. Se non è impostata, il programma sceglie il migliore per la sessione.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sceglie il modo in cui viene mostrata la citazione: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (una superficie layer), &lt;b&gt;xwayland&lt;/b&gt; (una finestra a schermo intero) o &lt;b&gt;null&lt;/b&gt; (una finestra normale che lascia stare la scrivania). Pensata per le prove.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>I bus dei messaggi, se non si trovano ai loro posti abituali.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La sessione del gestore degli accessi il cui sblocco mostra la citazione. Se non è impostata, il programma trova la propria.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>L’ambiente grafico. KDE e GNOME colorano da sé l’icona nell’area di notifica.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Permette alla finestra di venire in primo piano; impostata dall’ambiente grafico che avvia il programma.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Le cartelle delle impostazioni, delle voci che avviano programmi all’accesso, delle proprie foto e del blocco che impedisce al programma di essere eseguito due volte.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Scrive sullo standard error ciò che viene detto al compositore.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>FILE</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Le impostazioni.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Avvia il programma all’accesso.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Le proprie foto.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ricorda che il programma ha già detto come raggiungere le impostazioni.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La cartella di ciò che il programma ricorda da sé.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>I proxy tra il programma e una fonte di citazioni sul web, e gli host che non ne hanno bisogno. Se non sono impostati, si usano quelli dell’ambiente grafico.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>I certificati di cui fidarsi al posto di quelli del sistema.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Attivano categorie del registro, che viene scritto sullo standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; segnala quando una fonte o una foto non è stata letta, le altre sono quelle della libreria Qt. Se non ne attivano alcuna, non viene registrato nulla.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Mostra la citazione di oggi</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Modifica aspetto…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Accoglie con una citazione</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Quando il computer si riattiva o viene sbloccato, Morrowleaf copre lo schermo per un momento: uno sfondo che si muove lentamente, un saluto, la data e una citazione che appare riga per riga. Un clic o un tasto la congeda.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Nove tavolozze, foto incluse e personali, cinque animazioni del testo</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 citazioni incluse, o una fonte propria: un indirizzo web o un file</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Nulla è in esecuzione finché nulla è mostrato</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Notte</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Brace</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Bosco</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Prugna</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardesia</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Ottone</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
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
        <translation>Deriva</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Fermo</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Respiro</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — citazione del giorno</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — a caso</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — a caso</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Scrittura a mano</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Macchina da scrivere</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Salita</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Sfocatura</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Aggiungi una foto</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Aggiungi immagini tue, fino a tre</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Tavolozza</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>La tua foto</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Con grazie (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Senza grazie (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrotondato</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Monospazio</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettatura</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Trasparenza</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Comparsa del testo</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Movimento dello sfondo</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Grana</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Grana della pellicola</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf è in esecuzione</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Questo desktop non ha un’area di notifica per la sua icona. Per le impostazioni, fare clic destro su Morrowleaf nel menu delle applicazioni e scegliere «%1», oppure eseguire %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Tavolozza</translation>
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
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Aggiungi una foto</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>La tua foto</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>La tua foto %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Rimuovi la tua foto %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamento</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Citazioni</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Tavolozza, carattere, dimensione, vignettatura e grana</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Mostra alla riattivazione e allo sblocco</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Ogni ora</numerusform>
            <numerusform>Ogni %n ore</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Ogni volta che compare</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Nuova citazione</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Apri all’accesso</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Chiudi dopo</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Elenco incluso</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Lascia vuoto per la citazione inclusa</numerusform>
            <numerusform>Lascia vuoto per le %n citazioni incluse</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Indirizzo della fonte</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Prova in corso…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Va bene qualsiasi JSON con un campo per la citazione e uno per l’autore, come pure il percorso di un file locale. L’ultima citazione caricata viene conservata e quindi appare anche senza connessione.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Le impostazioni illeggibili sono conservate in %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>Nessuna citazione trovata in quella fonte.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Impostazioni di Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Modifica aspetto</translation>
    </message>
</context>
</TS>
