<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Dunas</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Bosque</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Lago</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Crestas</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Mar</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>abrir la ventana de configuración en lugar de mostrar la cita</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>iniciar el programa al iniciar sesión y salir</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>comprobar las citas incluidas y salir</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>mostrar esta ayuda y salir</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>mostrar la versión y salir</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Uso: morrowleaf [OPCIÓN]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Le recibe con una cita.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Los demás argumentos se ignoran. Hay más en la página de manual morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Cita del día</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Le recibe con una cita</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>cita;frase;saludo;bienvenida;despertar;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Editar la apariencia…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Configuración…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Buenos días</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Buenas tardes</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Buenas tardes</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Aún en vela</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc para terminar</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>pulse cualquier tecla</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Órdenes de usuario</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>le recibe con una cita</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SINOPSIS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>DESCRIPCIÓN</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf tiene un icono en la bandeja del panel. Cuando se inicia, y cada vez que el equipo despierta, la sesión pasa a estar activa o se desbloquea la pantalla, cubre con una cita la pantalla en la que trabaja. Una pulsación del ratón o de una tecla cierra la cita, que de lo contrario se cierra sola.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mientras el bus de mensajes de la sesión no responda, no hay icono, ni siquiera en una bandeja del servidor X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>El programa se ejecuta una sola vez por sesión: si se inicia de nuevo, el programa en ejecución muestra la cita.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Los demás argumentos se ignoran.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Abrir la ventana de configuración en lugar de mostrar la cita.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Registrar el programa para que se inicie al iniciar sesión, mostrar una línea con el resultado y salir.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Comprobar la colección incluida y su calendario, mostrar una línea y salir. Esto restablece la frecuencia guardada de las citas nuevas.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mostrar una lista de las opciones y salir.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mostrar la versión y salir.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ESTADO DE SALIDA</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Se pidió al programa que saliera, o el programa que ya se ejecuta ha recibido la petición. &lt;b&gt;--register-login&lt;/b&gt; y &lt;b&gt;--selftest&lt;/b&gt; devuelven 0 aunque lo que intentaron haya fallado; la línea que muestran lo dice.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>No hay pantalla en la que mostrar la cita, o tiene muy pocos colores.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ENTORNO</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>El idioma del programa, en este orden. &lt;b&gt;LANGUAGE&lt;/b&gt; puede enumerar varios idiomas, separados por dos puntos; se usa el primero que el programa conoce. Si no conoce ninguno, el programa está en inglés.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La pantalla. Si ambas están definidas, se usa Wayland si su compositor ofrece superficies de capa, y X11 en caso contrario.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Elige el sistema de ventanas, como en todo programa de Qt. Si no está definida, el programa elige el mejor para la sesión.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Elige la forma en que se muestra la cita: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (una superficie de capa), &lt;b&gt;xwayland&lt;/b&gt; (una ventana a pantalla completa) o &lt;b&gt;null&lt;/b&gt; (una ventana corriente que deja el escritorio tal cual). Pensada para pruebas.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Los buses de mensajes, si no están en sus lugares habituales.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La sesión del gestor de inicio de sesión cuyo desbloqueo muestra la cita. Si no está definida, el programa encuentra la suya.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>El escritorio. KDE y GNOME dan color ellos mismos al icono de la bandeja.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Permite que la ventana pase al frente; la define el escritorio que inicia el programa.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Las carpetas de la configuración, de las entradas que inician programas al iniciar sesión, de sus propias fotos y del bloqueo que impide que el programa se ejecute dos veces.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Escribe en la salida de error estándar lo que se dice al compositor.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ARCHIVOS</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La configuración.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Inicia el programa al iniciar sesión.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sus propias fotos.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Recuerda que el programa ya le ha dicho cómo llegar a sus ajustes.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>La carpeta de lo que el programa recuerda por sí mismo.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Los proxies entre el programa y una fuente de citas en la web, y los servidores que no necesitan ninguno. Si no están definidos, se usan los del escritorio.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Los certificados en los que confiar en lugar de los del sistema.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Activan categorías del registro, que se escribe en la salida de error estándar: &lt;b&gt;morrowleaf.readers&lt;/b&gt; indica cuándo no se ha leído una fuente o una foto; las demás son las de la biblioteca Qt. Si no activan ninguna, no se registra nada.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Mostrar la cita del día</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Editar la apariencia…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Le recibe con una cita</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Cuando el equipo despierta o lo desbloquea, Morrowleaf cubre la pantalla por un momento: un fondo que se mueve despacio, un saludo, la fecha y una cita que aparece línea a línea. Una pulsación del ratón o de una tecla la despide.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Nueve paletas, fotos incluidas y las suyas, cinco animaciones de texto</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 citas incluidas, o una fuente propia: una dirección web o un archivo</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Nada se ejecuta mientras no se muestra nada</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Brasa</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Bosque</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Ciruela</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Pizarra</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Latón</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
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
        <translation>Deriva</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Quieto</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Respiración</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Acercamiento</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — cita del día</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — al azar</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — al azar</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Manuscrito</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Máquina de escribir</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Ascenso</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desenfoque</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Añadir una foto</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Añada imágenes propias, hasta tres</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Su foto</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Tipografía</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Con serifas (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Sin serifas (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Redondeada</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Monoespaciada</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Viñeta</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Aparición del texto</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Movimiento del fondo</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Grano</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Grano de película</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf está en marcha</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Este escritorio no tiene bandeja del sistema para su icono. Para los ajustes, pulse con el botón derecho sobre Morrowleaf en el menú de aplicaciones y elija «%1», o ejecute %2.</translation>
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
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Añadir una foto</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Su foto</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Su foto %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Quitar su foto %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Citas</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Paleta, tipografía, tamaño, viñeta y grano</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Mostrar al despertar y al desbloquear</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Cada hora</numerusform>
            <numerusform>Cada %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Cada vez que se muestra</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Cita nueva</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Cerrar después de</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinidas</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Lista incluida</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Déjelo vacío para la cita incluida</numerusform>
            <numerusform>Déjelo vacío para las %n citas incluidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Dirección de la fuente</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Probando…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Sirve cualquier JSON con un campo para la cita y otro para el autor, así como la ruta de un archivo local. La última cita cargada se guarda, por lo que también se muestra sin conexión.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>La configuración ilegible se conserva en %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>No se encontró ninguna cita en esa fuente.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Configuración de Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Editar la apariencia</translation>
    </message>
</context>
</TS>
