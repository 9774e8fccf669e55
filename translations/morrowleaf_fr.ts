<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Aurore</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Dunes</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Forêt</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Lac</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Crêtes</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Mer</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>ouvrir la fenêtre des paramètres au lieu d’afficher la citation</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>lancer le programme à l’ouverture de session, puis quitter</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>vérifier les citations intégrées, puis quitter</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>afficher cette aide, puis quitter</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>afficher la version, puis quitter</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Utilisation&#xa0;: morrowleaf [OPTION]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Vous accueille avec une citation.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Les autres arguments sont ignorés. La page de manuel morrowleaf(1) en dit davantage.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Citation du jour</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Vous accueille avec une citation</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>citation;pensée;accueil;bonjour;réveil;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Modifier l’apparence…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Paramètres…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Bonjour</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Bon après-midi</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Bonsoir</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Pas encore au lit</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>échap pour terminer</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>appuyez sur une touche</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Commandes utilisateur</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NOM</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>vous accueille avec une citation</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf a une icône dans la zone de notification du tableau de bord. À son lancement, et chaque fois que l’ordinateur sort de veille, que la session devient active ou que l’écran est déverrouillé, il couvre d’une citation l’écran sur lequel vous travaillez. Un clic ou une touche ferme la citation, qui sinon se ferme d’elle-même.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Tant que le bus de messages de la session ne répond pas, il n’y a pas d’icône, pas même dans une zone de notification du serveur X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Le programme ne s’exécute qu’une fois par session&#xa0;: le lancer de nouveau fait afficher la citation par le programme en cours.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Les autres arguments sont ignorés.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ouvrir la fenêtre des paramètres au lieu d’afficher la citation.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Inscrire le programme pour qu’il soit lancé à l’ouverture de session, afficher une ligne avec le résultat, puis quitter.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Vérifier la collection intégrée et son calendrier, afficher une ligne, puis quitter. Cela réinitialise la fréquence enregistrée des nouvelles citations.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Afficher la liste des options, puis quitter.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Afficher la version, puis quitter.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>CODE DE RETOUR</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Il a été demandé au programme de quitter, ou le programme déjà en cours a reçu la demande. &lt;b&gt;--register-login&lt;/b&gt; et &lt;b&gt;--selftest&lt;/b&gt; renvoient 0 même si leur tentative a échoué&#xa0;; la ligne affichée le dit.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Il n’y a pas d’affichage sur lequel montrer la citation, ou il a trop peu de couleurs.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ENVIRONNEMENT</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La langue du programme, dans cet ordre. &lt;b&gt;LANGUAGE&lt;/b&gt; peut énumérer plusieurs langues, séparées par des deux-points&#xa0;; la première que le programme connaît est utilisée. S’il n’en connaît aucune, le programme est en anglais.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>L’affichage. Si les deux sont définies, Wayland est utilisé si son compositeur propose des surfaces «&#xa0;layer&#xa0;», et X11 sinon.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Choisit le système de fenêtrage, comme dans tout programme Qt. Si elle n’est pas définie, le programme choisit le meilleur pour la session.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Choisit la manière d’afficher la citation&#xa0;: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (une surface «&#xa0;layer&#xa0;»), &lt;b&gt;xwayland&lt;/b&gt; (une fenêtre en plein écran) ou &lt;b&gt;null&lt;/b&gt; (une fenêtre ordinaire qui laisse le bureau tranquille). Destinée aux tests.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Les bus de messages, s’ils ne sont pas à leur place habituelle.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La session du gestionnaire de connexion dont le déverrouillage affiche la citation. Si elle n’est pas définie, le programme trouve la sienne.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Le bureau. KDE et GNOME colorent eux-mêmes l’icône de la zone de notification.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Permet à la fenêtre de passer au premier plan&#xa0;; définie par le bureau qui lance le programme.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Les dossiers des paramètres, des entrées qui lancent des programmes à l’ouverture de session, de vos propres photos et du verrou qui empêche le programme de s’exécuter deux fois.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Écrit sur la sortie d’erreur standard ce qui est dit au compositeur.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Les paramètres.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Lance le programme à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Vos propres photos.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Retient que le programme vous a dit comment accéder à ses paramètres.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Le dossier de ce que le programme retient de lui-même.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Les serveurs mandataires entre le programme et une source de citations sur le web, et les hôtes qui s’en passent. S’ils ne sont pas définis, ceux du bureau sont utilisés.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Les certificats auxquels se fier au lieu de ceux du système.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Activent des catégories du journal, qui est écrit sur la sortie d’erreur standard&#xa0;: &lt;b&gt;morrowleaf.readers&lt;/b&gt; signale qu’une source ou une photo n’a pas été lue, les autres sont celles de la bibliothèque Qt. Si elles n’en activent aucune, rien n’est journalisé.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Afficher la citation du jour</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Modifier l’apparence…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Vous accueille avec une citation</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Quand votre ordinateur sort de veille ou que vous le déverrouillez, Morrowleaf couvre l’écran un instant&#xa0;: un fond qui bouge lentement, un mot d’accueil, la date et une citation qui apparaît ligne par ligne. Un clic ou une touche la fait disparaître.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Neuf palettes, des photos intégrées et les vôtres, cinq animations de texte</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 citations intégrées, ou votre propre source&#xa0;: une adresse web ou un fichier</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Rien ne s’exécute tant que rien n’est affiché</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Minuit</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Braise</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Forêt</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Prune</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardoise</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Laiton</translation>
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
        <translation>Dérive</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Immobile</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Respiration</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurore</translation>
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
        <translation>ZenQuotes — citation du jour</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — au hasard</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — au hasard</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Écriture manuscrite</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Machine à écrire</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Montée</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Ajouter une photo</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Ajoutez vos propres images, trois au maximum</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Votre photo</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Avec empattements (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Sans empattement (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrondie</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Chasse fixe</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettage</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Apparition du texte</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Mouvement du fond</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Grain</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Grain de pellicule</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf est en cours d’exécution</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Ce bureau n’a pas de zone de notification pour son icône. Pour les paramètres, faites un clic droit sur Morrowleaf dans le menu des applications et choisissez «&#xa0;%1&#xa0;», ou lancez %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
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
        <translation>Images</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Ajouter une photo</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Votre photo</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Votre photo&#xa0;%1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Retirer votre photo&#xa0;%1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Citations</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Palette, police, taille, vignettage et grain</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Afficher à la sortie de veille et au déverrouillage</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Toutes les heures</numerusform>
            <numerusform>Toutes les&#xa0;%n heures</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>À chaque affichage</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Nouvelle citation</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Fermer après</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Liste intégrée</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Laissez vide pour la citation intégrée</numerusform>
            <numerusform>Laissez vide pour les&#xa0;%n citations intégrées</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Adresse de la source</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Test en cours…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Tout JSON contenant un champ pour la citation et un pour l’auteur convient, de même que le chemin d’un fichier local. La dernière citation chargée est conservée et s’affiche donc aussi hors ligne.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Les paramètres illisibles sont conservés dans&#xa0;%1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>Aucune citation trouvée à cette source.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Paramètres de Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Modifier l’apparence</translation>
    </message>
</context>
</TS>
