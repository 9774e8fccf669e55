<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>Kutup ışıkları</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Kumullar</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Orman</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Göl</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Sırtlar</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Deniz</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>alıntıyı göstermek yerine ayarlar penceresini açar</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>programı oturum açılışında başlatacak biçimde kaydeder ve çıkar</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>yerleşik alıntıları denetler ve çıkar</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>bu yardımı yazdırır ve çıkar</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>sürümü yazdırır ve çıkar</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Kullanım: morrowleaf [SEÇENEK]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Sizi bir alıntıyla karşılar.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Diğer argümanlar yok sayılır. Daha fazlası morrowleaf(1) kılavuz sayfasındadır.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Günün Alıntısı</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Sizi bir alıntıyla karşılar</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>alıntı;söz;özdeyiş;karşılama;selam;uyanma;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Görünümü Düzenle…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Ayarlar…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Günaydın</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Tünaydın</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>İyi akşamlar</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Hâlâ ayakta</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>bitirmek için esc</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>herhangi bir tuşa basın</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Kullanıcı Komutları</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>İSİM</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>sizi bir alıntıyla karşılar</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ÖZET</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>AÇIKLAMA</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf’in panelin sistem tepsisinde bir simgesi vardır. Başladığında ve bilgisayar her uyandığında, oturum etkinleştiğinde ya da ekran kilidi açıldığında, çalıştığınız ekranı bir alıntıyla kaplar. Bir tıklama ya da bir tuş alıntıyı kapatır; yoksa alıntı kendiliğinden kapanır.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Oturumun ileti veri yolu yanıt vermediği sürece simge yoktur, X sunucusunun tepsisinde bile.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Program oturum başına bir kez çalışır: yeniden başlatıldığında çalışan program alıntıyı gösterir.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SEÇENEKLER</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Diğer argümanlar yok sayılır.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Alıntıyı göstermek yerine ayarlar penceresini açar.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Programı oturum açılışında başlatılmak üzere kaydeder, sonucu bir satırda yazdırır ve çıkar.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Yerleşik derlemeyi ve takvimini denetler, bir satır yazdırır ve çıkar. Bu, yeni alıntıların saklanan sıklığını sıfırlar.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Seçeneklerin listesini yazdırır ve çıkar.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sürümü yazdırır ve çıkar.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ÇIKIŞ DURUMU</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Programdan çıkması istendi ya da zaten çalışan program isteği aldı. &lt;b&gt;--register-login&lt;/b&gt; ve &lt;b&gt;--selftest&lt;/b&gt;, denedikleri şey başarısız olsa bile 0 döndürür; yazdırdıkları satır bunu söyler.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Alıntının gösterileceği bir ekran yok ya da ekranın renkleri çok az.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ORTAM</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Programın dili, bu sırayla. &lt;b&gt;LANGUAGE&lt;/b&gt; iki nokta ile ayrılmış birkaç dil sayabilir; programın bildiği ilk dil kullanılır. Hiçbirini bilmiyorsa program İngilizcedir.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ekran. İkisi de ayarlıysa, birleştiricisi katman yüzeyleri sunuyorsa Wayland, yoksa X11 kullanılır.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Her Qt programında olduğu gibi pencere sistemini seçer. Ayarlı değilse program oturum için en iyisini seçer.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Alıntının nasıl gösterileceğini seçer: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (bir katman yüzeyi), &lt;b&gt;xwayland&lt;/b&gt; (tam ekran bir pencere) ya da &lt;b&gt;null&lt;/b&gt; (masaüstüne dokunmayan sıradan bir pencere). Sınamalar içindir.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Alışılmış yerlerinde değillerse ileti veri yolları.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Oturum yöneticisinin, kilidi açıldığında alıntının gösterildiği oturumu. Ayarlı değilse program kendi oturumunu bulur.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Masaüstü ortamı. KDE ve GNOME tepsideki simgeyi kendileri renklendirir.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Pencerenin öne gelmesini sağlar; programı başlatan masaüstü ortamı ayarlar.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ayarların, oturum açılışında program başlatan girdilerin, kendi fotoğraflarınızın ve programın iki kez çalışmasını önleyen kilidin klasörleri.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Birleştiriciye söylenenleri standart hataya yazar.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>DOSYALAR</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ayarlar.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Programı oturum açılışında başlatır.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Kendi fotoğraflarınız.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Programın ayarlara nasıl ulaşılacağını söylediğini hatırlar.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Programın kendiliğinden hatırladıklarının klasörü.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Program ile web’deki bir alıntı kaynağı arasındaki vekil sunucular ve bunlara gerek duymayan sunucular. Ayarlı değillerse masaüstününkiler kullanılır.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Sisteminkiler yerine güvenilecek sertifikalar.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Standart hataya yazılan günlüğün kategorilerini açar: &lt;b&gt;morrowleaf.readers&lt;/b&gt; bir kaynağın ya da fotoğrafın okunamadığını bildirir, ötekiler Qt kitaplığınındır. Hiçbirini açmazlarsa hiçbir şey günlüğe yazılmaz.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Günün Alıntısını Göster</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Görünümü Düzenle…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Sizi bir alıntıyla karşılar</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Bilgisayarınız uyandığında ya da kilidini açtığınızda Morrowleaf ekranı kısa bir süre kaplar: yavaşça hareket eden bir arka plan, bir selam, tarih ve satır satır beliren bir alıntı. Bir tıklama ya da bir tuş onu uğurlar.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Dokuz palet, yerleşik ve kendi fotoğraflarınız, beş metin canlandırması</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 yerleşik alıntı ya da kendi kaynağınız: bir web adresi veya bir dosya</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Hiçbir şey gösterilmezken hiçbir şey çalışmaz</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Gece</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Köz</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Orman</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Erik</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Arduvaz</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Pirinç</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Menekşe</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Kâğıt</translation>
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
        <translation>%%1</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>A number of seconds; there is room for five characters</extracomment>
        <translation>%1&#xa0;sn</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>Süzülme</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Durgun</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Nefes</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Kutup ışıkları</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Yakınlaşma</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — günün alıntısı</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — rastgele</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — rastgele</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Belirme</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>El yazısı</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Daktilo</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Yükselme</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Bulanıklık</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Fotoğraf ekle</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Kendi resimlerinizi ekleyin, en çok üç</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palet</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Fotoğrafınız</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Yazı tipi</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Serif (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Sans (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Yuvarlatılmış</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Eş aralıklı</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Kenar kararması</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Saydamlık</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Metnin belirmesi</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Ekran hareketi</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Gren</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Film greni</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf çalışıyor</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Bu masaüstünde simgesi için bir sistem tepsisi yok. Ayarlar için programlar menüsünde Morrowleaf’e sağ tıklayıp “%1” seçin ya da %2 komutunu çalıştırın.</translation>
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
        <translation>Oto</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>Resimler</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Fotoğraf Ekle</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Fotoğrafınız</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Fotoğrafınız %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Fotoğrafınızı kaldır: %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Davranış</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Alıntılar</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Palet, yazı tipi, boyut, kenar kararması ve gren</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Uyanınca ve kilit açılınca göster</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Her %n saatte bir</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Her gösterimde</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Yeni alıntı</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Oturum açılışında başlat</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Kapanma süresi</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ön ayarlar</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Yerleşik liste</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Yerleşik %n alıntı için boş bırakın</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Kaynağın adresi</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Sınanıyor…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Sına</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Alıntı ve yazar alanı olan her JSON uygundur; yerel bir dosyanın yolu da. Son alınan alıntı saklanır, bu yüzden çevrimdışıyken de gösterilir.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>Okunamayan ayarlar %1 dosyasında saklanıyor</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>Bu kaynakta alıntı bulunamadı.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Morrowleaf Ayarları</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Görünümü Düzenle</translation>
    </message>
</context>
</TS>
