<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>极光</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>沙丘</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森林</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>湖泊</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>山脊</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>大海</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>打开设置窗口，而不显示语录</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>将程序设为登录时启动，然后退出</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>检查内置语录，然后退出</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>显示此帮助，然后退出</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>显示版本，然后退出</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>用法：morrowleaf [选项]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>用一句语录迎接您。</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>其他参数会被忽略。更多内容请见手册页 morrowleaf(1)。</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>每日语录</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>用一句语录迎接您</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>语录;名言;格言;问候;唤醒;quote;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>编辑外观…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>设置…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>早上好</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>下午好</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>晚上好</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>夜深了，还没睡</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>按 esc 完成</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>按任意键</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>用户命令</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>名称</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>用一句语录迎接您</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>概要</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>描述</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf 在面板的托盘中有一个图标。程序启动时，以及每当计算机唤醒、会话变为活动状态或屏幕解锁时，它会用一句语录覆盖您正在使用的屏幕。点击鼠标或按键可关闭语录，否则它会自行关闭。</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>会话的消息总线没有响应时不会有图标，即使在 X 服务器的托盘中也没有。</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>程序在每个会话中只运行一次：再次启动时，正在运行的程序会显示语录。</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>其他参数会被忽略。</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>打开设置窗口，而不显示语录。</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>将程序注册为登录时启动，输出一行结果，然后退出。</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>检查内置的语录集及其日程，输出一行，然后退出。这会重置已保存的新语录频率。</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>输出选项列表，然后退出。</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>输出版本，然后退出。</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>退出状态</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>程序被要求退出，或者已在运行的程序收到了请求。&lt;b&gt;--register-login&lt;/b&gt; 和 &lt;b&gt;--selftest&lt;/b&gt; 即使所尝试的操作失败也返回 0；它们输出的那一行会说明情况。</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>没有可显示语录的屏幕，或者屏幕的颜色太少。</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>环境变量</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>程序的语言，按此顺序。&lt;b&gt;LANGUAGE&lt;/b&gt; 可以列出多种语言，以冒号分隔；使用程序支持的第一种。如果都不支持，程序使用英语。</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>显示器。如果两者都已设置，则在 Wayland 的合成器提供 layer 表面时使用 Wayland，否则使用 X11。</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>选择窗口系统，与所有 Qt 程序相同。如果未设置，程序会选择最适合当前会话的窗口系统。</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>选择显示语录的方式：&lt;b&gt;x11&lt;/b&gt;、&lt;b&gt;wayland&lt;/b&gt;（layer 表面）、&lt;b&gt;xwayland&lt;/b&gt;（全屏窗口）或 &lt;b&gt;null&lt;/b&gt;（不影响桌面的普通窗口）。用于测试。</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>消息总线的位置，如果不在通常的位置。</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>登录管理器的会话，其解锁会显示语录。如果未设置，程序会找到自己的会话。</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>桌面环境。KDE 和 GNOME 会自行为托盘图标着色。</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>让窗口可以来到最前面；由启动程序的桌面环境设置。</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>设置、登录时启动程序的条目、您自己的照片，以及防止程序重复运行的锁所在的文件夹。</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>将发送给合成器的内容写入标准错误。</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>设置。</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>登录时启动程序。</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>您自己的照片。</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>记录程序已告知您如何打开设置。</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>存放程序自行记录内容的文件夹。</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>程序与网络语录来源之间的代理服务器，以及不需要代理的主机。如果未设置，则使用桌面环境的代理服务器。</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>用来代替系统证书的受信任证书。</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>打开日志的类别，日志写入标准错误。&lt;b&gt;morrowleaf.readers&lt;/b&gt; 会在来源或照片未能读取时告知，其余是 Qt 库的类别。如果没有打开任何类别，则不记录日志。</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>显示今日语录</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>编辑外观…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>用一句语录迎接您</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>当您的计算机唤醒或解锁时，Morrowleaf 会短暂地覆盖屏幕：缓缓移动的背景、一句问候、日期，以及一句逐行出现的语录。点击鼠标或按键即可让它离开。</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>九种配色、内置照片和您自己的照片、五种文字动画</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 条内置语录，或您自己的来源：网址或文件</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>没有显示时，什么都不运行</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>午夜</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>余烬</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森林</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>梅紫</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>石板</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>黄铜</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫罗兰</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>墨黑</translation>
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
        <translation>%1&#xa0;秒</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>漂移</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>呼吸</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>极光</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — 每日语录</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — 随机</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — 随机</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>淡入</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>手写</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>打字机</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>上升</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>模糊</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>添加您自己的图像，最多三张</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>配色</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>您的照片</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>衬线（New York）</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>无衬线（SF Pro）</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>圆体</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>等宽</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>暗角</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>液态玻璃</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>文字显现</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>背景动态</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>颗粒</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>胶片颗粒</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf 正在运行</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>此桌面没有可放置其图标的系统托盘。要打开设置，请在程序菜单中右键点击 Morrowleaf 并选择“%1”，或运行 %2。</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>配色</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>自动</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>添加照片</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>您的照片</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>您的照片 %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>移除您的照片 %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>行为</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>语录</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>配色、字体、大小、暗角和颗粒</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>唤醒和解锁时显示</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>每 %n 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>每次显示时</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>新语录</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>自动关闭时间</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>内置列表</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>留空则使用内置的 %n 条语录</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>来源地址</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>正在测试…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>任何带有语录和作者字段的 JSON 都可以，本地文件路径也可以。最近一次获取的语录会被保存，因此离线时也能显示。</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>无法读取的设置保存在 %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>在该来源没有找到语录。</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Morrowleaf 设置</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>编辑外观</translation>
    </message>
</context>
</TS>
