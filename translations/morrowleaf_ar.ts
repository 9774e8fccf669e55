<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>الشفق القطبي</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>كثبان</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>غابة</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>بحيرة</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>سلاسل جبلية</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>بحر</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>فتح نافذة الإعدادات بدل عرض الاقتباس</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>ضبط البرنامج ليبدأ عند الولوج، ثم الخروج</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>فحص الاقتباسات المضمّنة، ثم الخروج</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>طباعة هذه المساعدة، ثم الخروج</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>طباعة الإصدارة، ثم الخروج</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>الاستخدام: morrowleaf [خيار]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>يستقبلك باقتباس واحد.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>تُهمل المعاملات الأخرى. المزيد في صفحة الدليل morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>اقتباس اليوم</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>يستقبلك باقتباس واحد</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>اقتباس;حكمة;قول;تحية;استيقاظ;quote;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>حرّر المظهر…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>الإعدادات…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>صباح الخير</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>طاب نهارك</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>مساء الخير</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>سهرة طيبة</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>اضغط esc للإنهاء</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>اضغط أي مفتاح</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>أوامر المستخدم</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NAME</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يستقبلك باقتباس واحد</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>لبرنامج Morrowleaf أيقونة في صينية الشريط. عند بدئه، وكلما استيقظ الحاسوب أو صارت الجلسة نشطة أو فُكّ قفل الشاشة، يغطي الشاشة التي تعمل عليها باقتباس. نقرة أو مفتاح يغلق الاقتباس، وإلا أُغلق من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ما دام ناقل رسائل الجلسة لا يستجيب فلا أيقونة، ولا حتى في صينية خادوم X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يعمل البرنامج مرة واحدة في كل جلسة: بدؤه مجددًا يجعل البرنامج العامل يعرض الاقتباس.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>تُهمل المعاملات الأخرى.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يفتح نافذة الإعدادات بدل عرض الاقتباس.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يسجّل البرنامج ليبدأ عند الولوج، ويطبع سطرًا واحدًا بالنتيجة، ثم يخرج.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يفحص المجموعة المضمّنة وجدولها، ويطبع سطرًا واحدًا، ثم يخرج. يعيد هذا تواتر الاقتباسات الجديدة المخزَّن إلى أصله.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يطبع قائمة بالخيارات، ثم يخرج.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يطبع الإصدارة، ثم يخرج.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>حالة الخروج</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>طُلب من البرنامج الخروج، أو تلقّى البرنامج العامل أصلًا الطلب. يعيد &lt;b&gt;--register-login&lt;/b&gt; و&lt;b&gt;--selftest&lt;/b&gt; القيمة 0 حتى إن فشل ما حاولاه؛ والسطر الذي يطبعانه يذكر ذلك.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>لا توجد شاشة يُعرض عليها الاقتباس، أو أن ألوانها قليلة جدًا.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>البيئة</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>لغة البرنامج، بهذا الترتيب. يمكن أن يسرد &lt;b&gt;LANGUAGE&lt;/b&gt; عدة لغات تفصلها نقطتان رأسيتان؛ وتُستخدم أول لغة يعرفها البرنامج. وإن لم يعرف أيًّا منها كان البرنامج بالإنجليزية.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الشاشة. إن ضُبط كلاهما استُخدم Wayland إن كان مركّبه يوفّر أسطح الطبقات، وإلا استُخدم X11.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يختار نظام النوافذ، كما في كل برامج Qt. إن لم يُضبط اختار البرنامج الأفضل للجلسة.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يختار طريقة عرض الاقتباس: &lt;b&gt;x11&lt;/b&gt; أو &lt;b&gt;wayland&lt;/b&gt; (سطح طبقة) أو &lt;b&gt;xwayland&lt;/b&gt; (نافذة ملء الشاشة) أو &lt;b&gt;null&lt;/b&gt; (نافذة عادية تدع سطح المكتب وشأنه). للاختبارات.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>نواقل الرسائل إن لم تكن في أماكنها المعتادة.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>جلسة مدير الولوج التي يعرض فكُّ قفلها الاقتباس. إن لم تُضبط وجد البرنامج جلسته بنفسه.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>بيئة سطح المكتب. تلوّن KDE وجنوم الأيقونة في الصينية بنفسيهما.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يتيح للنافذة أن تأتي إلى الأمام؛ يضبطه سطح المكتب الذي يبدأ البرنامج.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>مجلدات الإعدادات، والمدخلات التي تبدأ البرامج عند الولوج، وصورك الخاصة، والقفل الذي يمنع البرنامج من العمل مرتين.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يكتب ما يُقال للمركّب إلى الخطأ المعياري.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الإعدادات.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يبدأ البرنامج عند الولوج.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>صورك الخاصة.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>يحفظ أن البرنامج قد أخبرك بكيفية الوصول إلى إعداداته.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>مجلد ما يتذكره البرنامج من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الوسطاء بين البرنامج ومصدر اقتباسات على الوب، والمضيفون الذين لا يحتاجون إلى وسيط. إن لم تُضبط استُخدم وسطاء سطح المكتب.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>الشهادات التي يُوثق بها بدل شهادات النظام.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>تفعّل فئات من السجلّ الذي يُكتب إلى الخطأ المعياري: تذكر &lt;b&gt;morrowleaf.readers&lt;/b&gt; متى لم يُقرأ مصدر أو صورة، وبقية الفئات لمكتبة Qt. إن لم تفعّل أيًّا منها لم يُسجَّل شيء.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>اعرض اقتباس اليوم</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>حرّر المظهر…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>أنهِ</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>يستقبلك باقتباس واحد</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>حين يستيقظ حاسوبك أو تفكّ قفله، يغطي Morrowleaf الشاشة لحظةً: خلفية تتحرك ببطء، وتحية، والتاريخ، واقتباس واحد يظهر سطرًا بعد سطر. نقرة أو مفتاح يصرفه.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>تسع لوحات ألوان، وصور مضمّنة وصورك الخاصة، وخمس حركات للنص</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 اقتباسًا مضمّنًا، أو مصدر خاص بك: عنوان وب أو ملف</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>لا يعمل شيء ما دام لا يُعرض شيء</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>منتصف الليل</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>جمر</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>غابة</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>برقوق</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>أردواز</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>نحاس</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>بنفسج</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>ورق</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>نوار</translation>
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
        <translation>%1&#xa0;ث</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>انسياب</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>سكون</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>تنفّس</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>الشفق القطبي</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>تقريب</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — اقتباس اليوم</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — عشوائي</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — عشوائي</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>تلاشٍ</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>خط اليد</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>آلة كاتبة</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>صعود</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ضبابية</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>أضف صورة</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>أضف صورًا من عندك، ثلاثًا على الأكثر</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>لوحة الألوان</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>صورتك</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>مذيّل (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>بلا ذيول (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>مستدير</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>ثابت العرض</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>تعتيم الحواف</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>الشفافية</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>ظهور النص</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>حركة الخلفية</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>التحبّب</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>تحبّب الفيلم</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>أعد الضبط</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>يعمل Morrowleaf الآن</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>ليس في سطح المكتب هذا شريط لأيقونة البرنامج. لفتح الإعدادات، انقر بالزر الأيمن على Morrowleaf في قائمة البرامج واختر «%1»، أو شغّل %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>لوحة الألوان</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>تلقائي</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>أضف صورة</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>صورتك</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>صورتك %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>أزل صورتك %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>السلوك</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>الاقتباسات</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>لوحة الألوان والخط والحجم وتعتيم الحواف والتحبّب</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>اعرض عند الاستيقاظ وفكّ القفل</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>كل %n ساعة</numerusform>
            <numerusform>كل ساعة</numerusform>
            <numerusform>كل ساعتين</numerusform>
            <numerusform>كل %n ساعات</numerusform>
            <numerusform>كل %n ساعة</numerusform>
            <numerusform>كل %n ساعة</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>في كل مرة يظهر فيها</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>اقتباس جديد</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>افتح عند الولوج</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>أغلق بعد</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>القائمة المضمّنة</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>اتركه فارغًا لاستخدام الاقتباسات المضمّنة (%n)</numerusform>
            <numerusform>اتركه فارغًا لاستخدام الاقتباس المضمّن</numerusform>
            <numerusform>اتركه فارغًا لاستخدام الاقتباسين المضمّنين</numerusform>
            <numerusform>اتركه فارغًا لاستخدام %n اقتباسات مضمّنة</numerusform>
            <numerusform>اتركه فارغًا لاستخدام %n اقتباسًا مضمّنًا</numerusform>
            <numerusform>اتركه فارغًا لاستخدام %n اقتباس مضمّن</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>عنوان المصدر</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>يختبر…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>اختبر</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>يصلح أي JSON فيه حقل للاقتباس وحقل للمؤلف، وكذلك مسار ملف محلي. يُحفظ آخر اقتباس جُلب، فيظهر أيضًا دون اتصال.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>الإعدادات التي تعذّرت قراءتها محفوظة في %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>لم يُعثر على اقتباس في ذلك المصدر.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>إعدادات Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>حرّر المظهر</translation>
    </message>
</context>
</TS>
