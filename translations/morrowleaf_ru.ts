<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Сияние</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Дюны</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Лес</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Озеро</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Хребты</translation>
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
        <translation>открыть окно параметров вместо показа цитаты</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>запускать программу при входе в систему и выйти</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>проверить встроенные цитаты и выйти</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>вывести эту справку и выйти</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>вывести версию и выйти</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Использование: morrowleaf [КЛЮЧ]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Приветствует вас цитатой.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Другие аргументы не учитываются. Подробнее — на странице руководства morrowleaf(1).</translation>
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
        <translation>Приветствует вас цитатой</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>цитата;изречение;афоризм;приветствие;пробуждение;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Изменить оформление…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Параметры…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Доброе утро</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Добрый день</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Добрый вечер</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Всё ещё не спится</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc — закончить</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>нажмите любую клавишу</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Команды пользователя</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>приветствует вас цитатой</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>СИНТАКСИС</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ОПИСАНИЕ</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>У Morrowleaf есть значок в системном лотке панели. При запуске и всякий раз, когда компьютер выходит из спящего режима, сеанс становится активным или экран разблокируется, программа закрывает цитатой экран, за которым вы работаете. Щелчок или клавиша закрывает цитату; иначе она закрывается сама.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Пока шина сообщений сеанса не отвечает, значка нет, даже в системном лотке X-сервера.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Программа работает в сеансе один раз: при повторном запуске уже работающая программа показывает цитату.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>КЛЮЧИ</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Другие аргументы не учитываются.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Открыть окно параметров вместо показа цитаты.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Зарегистрировать программу для запуска при входе в систему, вывести строку с результатом и выйти.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Проверить встроенное собрание и его расписание, вывести одну строку и выйти. При этом сбрасывается сохранённая частота новых цитат.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Вывести список ключей и выйти.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Вывести версию и выйти.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>КОД ВОЗВРАТА</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Программу попросили завершиться, либо уже работающая программа получила запрос. &lt;b&gt;--register-login&lt;/b&gt; и &lt;b&gt;--selftest&lt;/b&gt; возвращают 0, даже если их действие не удалось; об этом говорит выведенная строка.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Нет экрана, на котором можно показать цитату, или в нём слишком мало цветов.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ОКРУЖЕНИЕ</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Язык программы, в этом порядке. &lt;b&gt;LANGUAGE&lt;/b&gt; может перечислять несколько языков через двоеточие; используется первый, который программа знает. Если она не знает ни одного, программа работает на английском.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Экран. Если заданы обе переменные, используется Wayland, когда его композитор предоставляет поверхности слоёв, и X11 в остальных случаях.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Выбирает оконную систему, как в любой программе на Qt. Если не задана, программа выбирает лучшую для сеанса.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Выбирает способ показа цитаты: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (поверхность слоя), &lt;b&gt;xwayland&lt;/b&gt; (полноэкранное окно) или &lt;b&gt;null&lt;/b&gt; (обычное окно, не затрагивающее рабочий стол). Предназначена для проверок.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Шины сообщений, если они не на обычных местах.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Сеанс диспетчера входа, при разблокировании которого показывается цитата. Если не задана, программа находит собственный сеанс.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Рабочая среда. KDE и GNOME окрашивают значок в системном лотке сами.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Позволяет окну выйти на передний план; задаётся рабочей средой, которая запускает программу.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Папки параметров, записей, запускающих программы при входе в систему, ваших собственных фотографий и блокировки, которая не даёт программе работать дважды.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Пишет в стандартный поток ошибок то, что передаётся композитору.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ФАЙЛЫ</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Параметры.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Запускает программу при входе в систему.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ваши собственные фотографии.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Хранит отметку, что программа уже сообщила, как открыть настройки.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Папка для того, что программа запоминает сама.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Прокси-серверы между программой и источником цитат в интернете, а также узлы, которым они не нужны. Если не заданы, используются прокси-серверы рабочей среды.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Сертификаты, которым программа доверяет вместо системных.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Включают категории журнала, который пишется в стандартный поток ошибок: &lt;b&gt;morrowleaf.readers&lt;/b&gt; сообщает, когда источник или фотография не прочитаны, остальные принадлежат библиотеке Qt. Если не включена ни одна, ничего не записывается.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Показать цитату дня</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Изменить оформление…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Приветствует вас цитатой</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Когда компьютер выходит из спящего режима или вы его разблокируете, Morrowleaf ненадолго закрывает экран: медленно движущийся фон, приветствие, дата и одна цитата, которая появляется строка за строкой. Щелчок или клавиша отпускает её.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Девять палитр, встроенные и собственные фотографии, пять анимаций текста</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 встроенные цитаты или собственный источник: адрес в интернете или файл</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Ничего не работает, пока ничего не показано</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Полночь</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Угли</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Лес</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Слива</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Сланец</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Латунь</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Фиалка</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Бумага</translation>
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
        <translation>%1&#xa0;%</translation>
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
        <translation>Покой</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Дыхание</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Сияние</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Приближение</translation>
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
        <translation>ZenQuotes — случайная</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — случайная</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Проявление</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Рукопись</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Пишущая машинка</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Подъём</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Размытие</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Добавить фотографию</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Добавьте собственные изображения, не больше трёх</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Палитра</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Ваша фотография</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>С засечками (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Без засечек (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Скруглённый</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Моноширинный</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Виньетка</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Прозрачность</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Появление текста</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Движение фона</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Зернистость</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Зерно плёнки</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
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
        <translation>Morrowleaf запущен</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>В этой среде нет области уведомлений для значка. Чтобы открыть настройки, щёлкните Morrowleaf правой кнопкой в меню программ и выберите «%1» или выполните %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>Палитра</translation>
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
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Добавить фотографию</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Ваша фотография</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Ваша фотография %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Удалить вашу фотографию %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Поведение</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Цитаты</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Палитра, шрифт, размер, виньетка и зернистость</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Показывать при пробуждении и разблокировке</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Каждый %n час</numerusform>
            <numerusform>Каждые %n часа</numerusform>
            <numerusform>Каждые %n часов</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>При каждом показе</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Новая цитата</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Открывать при входе в систему</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Закрывать через</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Шаблоны</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Встроенный список</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Оставьте пустым — будет %n встроенная цитата</numerusform>
            <numerusform>Оставьте пустым — будут %n встроенные цитаты</numerusform>
            <numerusform>Оставьте пустым — будут %n встроенных цитат</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Адрес источника</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Проверка…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Подойдёт любой JSON с полями цитаты и автора, а также путь к локальному файлу. Последняя загруженная цитата сохраняется и потому показывается и без сети.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Нечитаемые параметры сохранены в файле %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>В этом источнике цитата не найдена.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Параметры Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Изменить оформление</translation>
    </message>
</context>
</TS>
