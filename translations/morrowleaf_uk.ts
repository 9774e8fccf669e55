<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Сяйво</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Дюни</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Ліс</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Озеро</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Хребти</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Море</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>відкрити вікно параметрів замість показу цитати</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>запускати програму під час входу і вийти</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>перевірити вбудовані цитати і вийти</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>показати цю довідку і вийти</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>показати версію і вийти</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Користування: morrowleaf [ПАРАМЕТР]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Вітає вас цитатою.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Інші аргументи не враховуються. Докладніше — на сторінці довідника morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Цитата дня</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Вітає вас цитатою</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>цитата;вислів;афоризм;вітання;пробудження;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Змінити вигляд…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Параметри…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Доброго ранку</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Доброго дня</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Доброго вечора</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Ще не спиться</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc — завершити</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>натисніть будь-яку клавішу</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Команди користувача</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>НАЗВА</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>вітає вас цитатою</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>КОРОТКИЙ ОПИС</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ОПИС</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf має піктограму в системному лотку панелі. Під час запуску і щоразу, коли комп’ютер прокидається, сеанс стає активним або екран розблоковують, програма закриває цитатою екран, за яким ви працюєте. Клацання або клавіша закриває цитату; інакше вона закривається сама.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Поки шина повідомлень сеансу не відповідає, піктограми немає, навіть у системному лотку X-сервера.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Програма працює в сеансі лише раз: якщо запустити її знову, запущена програма покаже цитату.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ПАРАМЕТРИ КОМАНДНОГО РЯДКА</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Інші аргументи не враховуються.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Відкрити вікно параметрів замість показу цитати.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Зареєструвати програму для запуску під час входу, вивести один рядок із результатом і вийти.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Перевірити вбудовану збірку та її розклад, вивести один рядок і вийти. Це скидає збережену частоту нових цитат.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Показати список параметрів і вийти.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Показати версію і вийти.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>СТАН ВИХОДУ</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Програму попросили завершити роботу, або вже запущена програма отримала запит. &lt;b&gt;--register-login&lt;/b&gt; і &lt;b&gt;--selftest&lt;/b&gt; повертають 0, навіть якщо їхня спроба не вдалася; про це каже виведений рядок.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Немає екрана, на якому можна показати цитату, або в нього замало кольорів.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>СЕРЕДОВИЩЕ</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Мова програми, у цьому порядку. &lt;b&gt;LANGUAGE&lt;/b&gt; може перелічувати кілька мов через двокрапку; використовується перша, яку програма знає. Якщо вона не знає жодної, програма працює англійською.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Екран. Якщо задано обидві змінні, використовується Wayland, коли його композитор надає поверхні шарів, і X11 в інших випадках.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Вибирає віконну систему, як у кожній програмі на Qt. Якщо не задано, програма вибирає найкращу для сеансу.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Вибирає спосіб показу цитати: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (поверхня шару), &lt;b&gt;xwayland&lt;/b&gt; (повноекранне вікно) або &lt;b&gt;null&lt;/b&gt; (звичайне вікно, яке не чіпає стільницю). Призначено для перевірок.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Шини повідомлень, якщо вони не на звичних місцях.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Сеанс керування входом, розблокування якого показує цитату. Якщо не задано, програма знаходить власний.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Стільничне середовище. KDE і GNOME забарвлюють піктограму в лотку самі.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Дає вікну вийти на передній план; задає стільничне середовище, яке запускає програму.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Теки параметрів, записів, що запускають програми під час входу, ваших власних фото та блокування, яке не дає програмі працювати двічі.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Пише до стандартного потоку помилок те, що передається композитору.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ФАЙЛИ</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Параметри.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Запускає програму під час входу.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ваші власні фото.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Зберігає позначку, що програма вже повідомила, як відкрити налаштування.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Тека для того, що програма запам’ятовує сама.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Проксі-сервери між програмою і джерелом цитат в інтернеті, а також вузли, яким вони не потрібні. Якщо не задано, використовуються проксі-сервери стільничного середовища.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Сертифікати, яким програма довіряє замість системних.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Вмикають категорії журналу, який пишеться до стандартного потоку помилок: &lt;b&gt;morrowleaf.readers&lt;/b&gt; повідомляє, коли джерело або фотографію не прочитано, решта належать бібліотеці Qt. Якщо не ввімкнено жодної, нічого не записується.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Показати цитату дня</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Змінити вигляд…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Параметри…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Вітає вас цитатою</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Коли комп’ютер прокидається або ви його розблоковуєте, Morrowleaf на мить закриває екран: повільно рухоме тло, вітання, дата й одна цитата, що з’являється рядок за рядком. Клацання або клавіша відпускає її.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Дев’ять палітр, вбудовані та власні фото, п’ять анімацій тексту</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 вбудовані цитати або власне джерело: адреса в інтернеті чи файл</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Ніщо не працює, поки нічого не показано</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Північ</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Жарини</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Ліс</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Слива</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Сланець</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Латунь</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Фіалка</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Папір</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>Нуар</translation>
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
        <translation>%1&#xa0;с</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>Дрейф</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Спокій</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Дихання</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Сяйво</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Наближення</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — цитата дня</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — випадкова</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — випадкова</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Проявлення</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Рукопис</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Друкарська машинка</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Підйом</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Розмиття</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Додати фото</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Додайте власні зображення, не більше трьох</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Вигляд</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Палітра</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Ваше фото</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Із зарубками (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Без зарубок (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Округлений</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Моноширинний</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Віньєтка</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Прозорість</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Поява тексту</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Рух тла</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Зернистість</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Зерно плівки</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Скинути</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf запущено</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>У цьому середовищі немає лотка для значка. Щоб відкрити налаштування, клацніть Morrowleaf правою кнопкою в меню програм і виберіть «%1» або виконайте %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Палітра</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>Авто</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Додати фото</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Ваше фото</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Ваше фото %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Вилучити ваше фото %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Вигляд</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Поведінка</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Цитати</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Палітра, шрифт, розмір, віньєтка й зернистість</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Показувати після пробудження й розблокування</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Кожну %n годину</numerusform>
            <numerusform>Кожні %n години</numerusform>
            <numerusform>Кожні %n годин</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>За кожного показу</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Нова цитата</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Відкривати під час входу</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Закривати через</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Шаблони</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Вбудований список</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Залиште порожнім — буде %n вбудована цитата</numerusform>
            <numerusform>Залиште порожнім — будуть %n вбудовані цитати</numerusform>
            <numerusform>Залиште порожнім — будуть %n вбудованих цитат</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Адреса джерела</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Перевірка…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Перевірити</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Підійде будь-який JSON із полями цитати й автора, а також шлях до локального файлу. Останню завантажену цитату збережено, тож вона показується й без мережі.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Нечитабельні параметри збережено у файлі %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>У цьому джерелі цитати не знайдено.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Параметри Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Змінити вигляд</translation>
    </message>
</context>
</TS>
