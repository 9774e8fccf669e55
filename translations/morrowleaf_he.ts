<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>זוהר הקוטב</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>דיונות</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>יער</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>אגם</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>רכסים</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>ים</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>פתיחת חלון ההגדרות במקום הצגת הציטוט</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>הפעלת התוכנית בעת הכניסה למערכת, ויציאה</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>בדיקת הציטוטים המובנים, ויציאה</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>הדפסת עזרה זו, ויציאה</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>הדפסת הגרסה, ויציאה</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>שימוש: morrowleaf [אפשרות]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>מקבל את פניך בציטוט אחד.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>ארגומנטים אחרים אינם נלקחים בחשבון. פרטים נוספים בדף המדריך morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>הציטוט היומי</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>מקבל את פניך בציטוט אחד</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>ציטוט;ציטטה;פתגם;ברכה;התעוררות;quote;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>עריכת המראה…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>הגדרות…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>בוקר טוב</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>צהריים טובים</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>ערב טוב</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>עדיין לא ישנים</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc לסיום</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>יש ללחוץ על מקש כלשהו</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>פקודות משתמש</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NAME</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>מקבל את פניך בציטוט אחד</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>תקציר</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>תיאור</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ל־Morrowleaf יש סמל במגש המערכת שבלוח. עם הפעלתו, ובכל פעם שהמחשב מתעורר, שההפעלה נעשית פעילה או שנעילת המסך משתחררת, הוא מכסה בציטוט את המסך שבו עובדים. לחיצה או מקש סוגרים את הציטוט, שאחרת נסגר מעצמו.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>כל עוד אפיק ההודעות של ההפעלה אינו עונה, אין סמל, גם לא במגש של שרת X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>התוכנית פועלת פעם אחת בכל הפעלה: הפעלה נוספת שלה גורמת לתוכנית הפועלת להציג את הציטוט.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>אפשרויות</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ארגומנטים אחרים אינם נלקחים בחשבון.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>פתיחת חלון ההגדרות במקום הצגת הציטוט.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>רישום התוכנית להפעלה בעת הכניסה למערכת, הדפסת שורה אחת עם התוצאה, ויציאה.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>בדיקת האוסף המובנה ולוח הזמנים שלו, הדפסת שורה אחת, ויציאה. הפעולה מאפסת את התדירות השמורה של ציטוטים חדשים.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>הדפסת רשימת האפשרויות ויציאה.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>הדפסת הגרסה ויציאה.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>מצב יציאה</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>התוכנית התבקשה לצאת, או שהתוכנית שכבר פועלת קיבלה את הבקשה. &lt;b&gt;--register-login&lt;/b&gt; וכן &lt;b&gt;--selftest&lt;/b&gt; מחזירות 0 גם אם מה שניסו נכשל; השורה שהן מדפיסות אומרת זאת.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>אין תצוגה שאפשר להציג עליה את הציטוט, או שיש בה מעט מדי צבעים.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>סביבה</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>שפת התוכנית, לפי סדר זה. &lt;b&gt;LANGUAGE&lt;/b&gt; יכול למנות כמה שפות, מופרדות בנקודתיים; נעשה שימוש בראשונה שהתוכנית מכירה. אם אינה מכירה אף אחת, התוכנית באנגלית.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>התצוגה. אם שניהם מוגדרים, נעשה שימוש ב־Wayland אם המרכיב שלו מציע משטחי שכבה, ואחרת ב־X11.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>בוחר את מערכת החלונות, כמו בכל תוכנית Qt. אם אינו מוגדר, התוכנית בוחרת את המתאימה ביותר להפעלה.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>בוחר את הדרך שבה מוצג הציטוט: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (משטח שכבה), &lt;b&gt;xwayland&lt;/b&gt; (חלון במסך מלא) או &lt;b&gt;null&lt;/b&gt; (חלון רגיל שאינו נוגע בשולחן העבודה). מיועד לבדיקות.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>אפיקי ההודעות, אם אינם במקומותיהם הרגילים.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ההפעלה של מנהל הכניסה ששחרור נעילתה מציג את הציטוט. אם אינה מוגדרת, התוכנית מוצאת את שלה.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>שולחן העבודה. KDE ו־GNOME צובעים בעצמם את הסמל שבמגש.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>מאפשר לחלון לבוא לחזית; מוגדר בידי שולחן העבודה שמפעיל את התוכנית.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>התיקיות של ההגדרות, של הרשומות שמפעילות תוכניות בעת הכניסה, של התמונות שלך ושל המנעול שמונע מהתוכנית לפעול פעמיים.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>כותב אל פלט השגיאות התקני את מה שנאמר למרכיב.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>קבצים</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ההגדרות.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>מפעיל את התוכנית בעת הכניסה למערכת.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>התמונות שלך.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>זוכר שהתוכנית כבר אמרה לכם איך להגיע להגדרות שלה.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>התיקייה של מה שהתוכנית זוכרת בעצמה.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>השרתים המתווכים בין התוכנית לבין מקור ציטוטים ברשת, והמארחים שאינם זקוקים להם. אם אינם מוגדרים, נעשה שימוש באלה של שולחן העבודה.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>האישורים שיש לתת בהם אמון במקום אלה של המערכת.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>מפעילים קטגוריות של היומן, שנכתב אל פלט השגיאות התקני: &lt;b&gt;morrowleaf.readers&lt;/b&gt; מודיעה כאשר מקור או תמונה לא נקראו, והאחרות הן של ספריית Qt. אם אינם מפעילים אף אחת, לא נרשם דבר.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>הצגת הציטוט של היום</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>עריכת המראה…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>הגדרות…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>מקבל את פניך בציטוט אחד</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>כשהמחשב מתעורר או כשנעילתו משתחררת, Morrowleaf מכסה את המסך לרגע: רקע שנע לאיטו, ברכה, התאריך וציטוט אחד שמופיע שורה אחר שורה. לחיצה או מקש שולחים אותו לדרכו.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>תשע ערכות צבעים, תמונות מובנות ותמונות שלך, חמש הנפשות של טקסט</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 ציטוטים מובנים, או מקור משלך: כתובת באינטרנט או קובץ</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>דבר אינו פועל כל עוד דבר אינו מוצג</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>חצות</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>גחלת</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>יער</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>שזיף</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>צפחה</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>פליז</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>סיגלית</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>נייר</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>נואר</translation>
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
        <translation>%1&#xa0;שנ׳</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>סחיפה</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>דומם</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>נשימה</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>זוהר הקוטב</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>תקריב</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — הציטוט היומי</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — אקראי</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — אקראי</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>עמעום</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>כתב יד</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>מכונת כתיבה</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>עלייה</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>טשטוש</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>הוספת תמונה</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>הוספת תמונות משלך, עד שלוש</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>מראה</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>ערכת צבעים</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>התמונה שלך</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>גופן</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>עם תגים (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>ללא תגים (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>מעוגל</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>רוחב אחיד</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>גודל</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>הכהיית שוליים</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>שקיפות</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>הופעת הטקסט</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>תנועת הרקע</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>גרעיניות</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>גרעיניות של סרט צילום</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>איפוס</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>סיום</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf פועל</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>בשולחן העבודה הזה אין מגש לסמל התוכנית. כדי להגיע להגדרות, לחצו לחיצה ימנית על Morrowleaf בתפריט התוכניות ובחרו ב„%1”, או הריצו %2.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>ערכת צבעים</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>אוטו׳</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>הוספת תמונה</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>התמונה שלך</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>התמונה שלך %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>הסרת התמונה שלך %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>מראה</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>התנהגות</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>ציטוטים</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>צבעים, גופן, גודל, הכהיית שוליים וגרעיניות</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>הצגה בהתעוררות ובשחרור נעילה</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>בכל שעה</numerusform>
            <numerusform>בכל %n שעות</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>בכל הצגה</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>ציטוט חדש</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>פתיחה בכניסה למערכת</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>סגירה אחרי</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>מוכנים מראש</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>הרשימה המובנית</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>יש להשאיר ריק עבור הציטוט המובנה</numerusform>
            <numerusform>יש להשאיר ריק עבור %n הציטוטים המובנים</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>כתובת המקור</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>בבדיקה…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>בדיקה</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>כל JSON שיש בו שדה לציטוט ושדה למחבר מתאים, וגם נתיב לקובץ מקומי. הציטוט האחרון שהתקבל נשמר, ולכן הוא מוצג גם ללא חיבור.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>הגדרות שלא ניתן לקרוא נשמרו ב־%1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>לא נמצא ציטוט במקור הזה.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>הגדרות Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>עריכת המראה</translation>
    </message>
</context>
</TS>
