<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Dünen</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>See</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Bergrücken</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Meer</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>das Einstellungsfenster öffnen, statt das Zitat zu zeigen</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>das Programm bei der Anmeldung starten lassen und beenden</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>die eingebauten Zitate prüfen und beenden</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>diese Hilfe ausgeben und beenden</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>die Version ausgeben und beenden</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Aufruf: morrowleaf [OPTION]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Begrüßt Sie mit einem Zitat.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Andere Argumente werden nicht beachtet. Mehr steht in der Handbuchseite morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Zitat des Tages</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Begrüßt Sie mit einem Zitat</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>Zitat;Spruch;Begrüßung;Gruß;Aufwachen;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Erscheinungsbild bearbeiten&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Guten Morgen</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Guten Tag</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Guten Abend</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Noch wach</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>Esc zum Beenden</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>beliebige Taste drücken</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Dienstprogramme für Benutzer</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>BEZEICHNUNG</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>begrüßt Sie mit einem Zitat</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf hat ein Symbol im Infobereich der Leiste. Wenn es startet und immer, wenn der Rechner aufwacht, die Sitzung aktiv wird oder der Bildschirm entsperrt wird, bedeckt es den Bildschirm, an dem Sie arbeiten, mit einem Zitat. Ein Klick oder eine Taste schließt das Zitat, das sich sonst von selbst schließt.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Solange der Nachrichtenbus der Sitzung nicht antwortet, gibt es kein Symbol, auch nicht im Infobereich eines X-Servers.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Das Programm läuft einmal je Sitzung: Wird es noch einmal gestartet, so zeigt das laufende Programm das Zitat.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Andere Argumente werden nicht beachtet.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Das Einstellungsfenster öffnen, statt das Zitat zu zeigen.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Das Programm zum Start bei der Anmeldung eintragen, eine Zeile mit dem Ergebnis ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die eingebaute Sammlung und ihren Zeitplan prüfen, eine Zeile ausgeben und beenden. Dies setzt die gespeicherte Häufigkeit neuer Zitate zurück.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Eine Liste der Optionen ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Version ausgeben und beenden.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>RÜCKGABEWERT</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Das Programm wurde zum Beenden aufgefordert, oder das bereits laufende Programm hat die Anfrage erhalten. &lt;b&gt;--register-login&lt;/b&gt; und &lt;b&gt;--selftest&lt;/b&gt; geben 0 zurück, auch wenn ihr Versuch gescheitert ist; die ausgegebene Zeile sagt es dann.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Es gibt keine Anzeige, auf der das Zitat gezeigt werden kann, oder sie hat zu wenige Farben.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>UMGEBUNGSVARIABLEN</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Sprache des Programms, in dieser Reihenfolge. &lt;b&gt;LANGUAGE&lt;/b&gt; kann mehrere Sprachen nennen, durch Doppelpunkte getrennt; die erste, die das Programm kennt, wird verwendet. Kennt es keine, ist das Programm englisch.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Anzeige. Sind beide gesetzt, so wird Wayland verwendet, wenn dessen Compositor Layer-Oberflächen anbietet, und sonst X11.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Wählt das Fenstersystem, wie in jedem Qt-Programm. Ist es nicht gesetzt, wählt das Programm das für die Sitzung beste.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Wählt die Art, in der das Zitat gezeigt wird: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (eine Layer-Oberfläche), &lt;b&gt;xwayland&lt;/b&gt; (ein Vollbildfenster) oder &lt;b&gt;null&lt;/b&gt; (ein gewöhnliches Fenster, das die Arbeitsumgebung in Ruhe lässt). Für Tests gedacht.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Nachrichtenbusse, falls sie nicht an ihren üblichen Orten sind.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Sitzung der Anmeldeverwaltung, deren Entsperren das Zitat zeigt. Ist sie nicht gesetzt, findet das Programm seine eigene.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Arbeitsumgebung. KDE und GNOME färben das Symbol im Infobereich selbst.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Lässt das Fenster in den Vordergrund kommen; gesetzt von der Arbeitsumgebung, die das Programm startet.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Ordner der Einstellungen, der Einträge, die Programme bei der Anmeldung starten, Ihrer eigenen Fotos und der Sperre, die verhindert, dass das Programm zweimal läuft.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Schreibt in die Standardfehlerausgabe, was dem Compositor mitgeteilt wird.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Einstellungen.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Startet das Programm bei der Anmeldung.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ihre eigenen Fotos.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Hält fest, dass das Programm Ihnen gesagt hat, wie Sie zu den Einstellungen kommen.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Der Ordner für das, was sich das Programm selbst merkt.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Proxys zwischen dem Programm und einer Quelle von Zitaten im Web sowie die Rechner, die keinen brauchen. Sind sie nicht gesetzt, so gelten die der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Die Zertifikate, denen statt denen des Systems vertraut wird.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Schalten Kategorien des Protokolls ein, das in die Standardfehlerausgabe geschrieben wird: &lt;b&gt;morrowleaf.readers&lt;/b&gt; meldet, wenn eine Quelle oder ein Foto nicht gelesen wurde, die übrigen sind die der Qt-Bibliothek. Wird keine eingeschaltet, so wird nichts protokolliert.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Zitat des Tages anzeigen</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Erscheinungsbild bearbeiten&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Begrüßt Sie mit einem Zitat</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Wenn Ihr Rechner aufwacht oder Sie ihn entsperren, bedeckt Morrowleaf für einen Augenblick den Bildschirm: ein langsam bewegter Hintergrund, eine Begrüßung, das Datum und ein Zitat, das Zeile für Zeile erscheint. Ein Klick oder eine Taste schickt es fort.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Neun Farbpaletten, eingebaute und eigene Fotos, fünf Textanimationen</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 eingebaute Zitate oder eine eigene Quelle: eine Webadresse oder eine Datei</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Nichts läuft, solange nichts gezeigt wird</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Nachtblau</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Glut</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Pflaume</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Schiefer</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Messing</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
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
        <translation>%1&#xa0;%</translation>
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
        <translation>Treiben</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillstand</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Atmen</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Polarlicht</translation>
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
        <translation>ZenQuotes – Zitat des Tages</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes – Zufall</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON – Zufall</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Handschrift</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Schreibmaschine</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Aufsteigen</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Foto hinzufügen</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Eigene Bilder hinzufügen, höchstens drei</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Farbpalette</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Ihr Foto</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Serifen (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Serifenlos (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Gerundet</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Feste Breite</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Erscheinen des Textes</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Bewegung des Hintergrunds</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Körnung</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Filmkorn</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf läuft</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Dieser Desktop hat keinen Systembereich für das Symbol. Zu den Einstellungen kommen Sie, indem Sie Morrowleaf im Programmmenü mit der rechten Maustaste anklicken und „%1“ wählen, oder mit %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Farbpalette</translation>
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
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Foto hinzufügen</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Ihr Foto</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Ihr Foto %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Ihr Foto %1 entfernen</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Zitate</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Farbpalette, Schriftart, Größe, Vignette und Körnung</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Beim Aufwachen und Entsperren anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Jede Stunde</numerusform>
            <numerusform>Alle %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Bei jedem Anzeigen</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Neues Zitat</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Bei der Anmeldung öffnen</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Schließen nach</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Eingebaute Liste</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Leer lassen für das eine eingebaute Zitat</numerusform>
            <numerusform>Leer lassen für die %n eingebauten Zitate</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Adresse der Quelle</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Wird getestet&#xa0;…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Jedes JSON mit Feldern für Zitat und Autor ist geeignet, ebenso der Pfad einer lokalen Datei. Das zuletzt geladene Zitat wird aufbewahrt und auch ohne Verbindung angezeigt.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Unlesbare Einstellungen liegen in %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>An dieser Quelle wurde kein Zitat gefunden.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Morrowleaf-Einstellungen</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Erscheinungsbild bearbeiten</translation>
    </message>
</context>
</TS>
