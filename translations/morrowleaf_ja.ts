<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>オーロラ</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>砂丘</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>湖</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>山なみ</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>海</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>名言を表示する代わりに設定ウィンドウを開く</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>ログイン時にプログラムを起動するようにして終了する</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>内蔵の名言を検査して終了する</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>このヘルプを表示して終了する</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>バージョンを表示して終了する</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>使い方: morrowleaf [オプション]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>一つの名言であなたを迎えます。</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>その他の引数は無視されます。詳しくはマニュアルページ morrowleaf(1) をご覧ください。</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>今日の名言</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>一つの名言であなたを迎えます</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>名言;格言;引用;挨拶;スリープ解除;quote;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>外観を編集…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>設定…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>おはようございます</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>こんにちは</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>こんばんは</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>夜更かしですね</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc で終了</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>何かキーを押してください</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ユーザーコマンド</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>名前</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>一つの名言であなたを迎える</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>書式</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>説明</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf はパネルのトレイにアイコンを表示します。起動したとき、またコンピューターがスリープから復帰したとき、セッションがアクティブになったとき、画面のロックが解除されたときに、作業中の画面を名言で覆います。クリックするかキーを押すと閉じ、そうしなければ自動的に閉じます。</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>セッションのメッセージバスが応答しない間は、X サーバーのトレイにもアイコンは表示されません。</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>プログラムはセッションごとに一つだけ動作します。もう一度起動すると、動作中のプログラムが名言を表示します。</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>その他の引数は無視されます。</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>名言を表示する代わりに設定ウィンドウを開きます。</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ログイン時に起動するようにプログラムを登録し、結果を一行表示して終了します。</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>内蔵の名言集とその予定を検査し、一行表示して終了します。保存されている新しい名言の頻度はリセットされます。</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>オプションの一覧を表示して終了します。</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>終了ステータス</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>プログラムが終了を求められたか、すでに動作中のプログラムが要求を受け取りました。&lt;b&gt;--register-login&lt;/b&gt; と &lt;b&gt;--selftest&lt;/b&gt; は、試みたことが失敗しても 0 を返します。その場合は表示される行がそれを伝えます。</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>名言を表示するディスプレイがないか、その色数が少なすぎます。</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>環境変数</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>プログラムの言語。この順に調べられます。&lt;b&gt;LANGUAGE&lt;/b&gt; にはコロンで区切って複数の言語を指定でき、プログラムが対応する最初のものが使われます。どれにも対応していなければ英語になります。</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ディスプレイ。両方が設定されている場合、Wayland のコンポジターがレイヤーサーフェスを提供していれば Wayland を、そうでなければ X11 を使います。</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>すべての Qt プログラムと同じく、ウィンドウシステムを選びます。設定されていなければ、セッションに最適なものをプログラムが選びます。</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>名言の表示方法を選びます。&lt;b&gt;x11&lt;/b&gt;、&lt;b&gt;wayland&lt;/b&gt; (レイヤーサーフェス)、&lt;b&gt;xwayland&lt;/b&gt; (全画面ウィンドウ)、&lt;b&gt;null&lt;/b&gt; (デスクトップに影響しない通常のウィンドウ) のいずれかです。テスト用です。</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>メッセージバスが通常の場所にない場合の場所。</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ロック解除時に名言を表示する、ログインマネージャーのセッション。設定されていなければ、プログラムが自分のセッションを見つけます。</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>デスクトップ環境。KDE と GNOME はトレイのアイコンに自分で色を付けます。</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ウィンドウを前面に出せるようにします。プログラムを起動するデスクトップが設定します。</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>設定、ログイン時にプログラムを起動するエントリー、自分の写真、プログラムの二重起動を防ぐロックの各フォルダー。</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>コンポジターに送られる内容を標準エラーに書き出します。</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>設定。</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ログイン時にプログラムを起動します。</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>自分の写真。</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>設定の開き方をすでにお知らせしたことを記録します。</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>プログラムが自ら記録するもののフォルダー。</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>プログラムとウェブ上の名言の提供元との間のプロキシ、およびプロキシが不要なホスト。設定されていなければ、デスクトップのものが使われます。</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>システムの証明書の代わりに信頼する証明書。</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>標準エラーに書き出されるログのカテゴリーを有効にします。&lt;b&gt;morrowleaf.readers&lt;/b&gt; は取得元や写真を読み込めなかったことを知らせ、ほかは Qt ライブラリーのカテゴリーです。何も有効にしなければ、何も記録されません。</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>今日の名言を表示</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>外観を編集…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>一つの名言であなたを迎えます</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>コンピューターがスリープから復帰したり、ロックを解除したりすると、Morrowleaf はしばらくの間画面を覆います。ゆっくりと動く背景、挨拶、日付、そして一行ずつ現れる一つの名言。クリックするかキーを押すと消えます。</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>九つのパレット、内蔵の写真と自分の写真、五つの文字アニメーション</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 の内蔵の名言、または自分の提供元 (ウェブアドレスまたはファイル)</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>何も表示していない間は何も動きません</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>真夜中</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>残り火</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>プラム</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>スレート</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>真鍮</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>すみれ</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>ノワール</translation>
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
        <translation>%1秒</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>漂う</translation>
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
        <translation>オーロラ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — 今日の名言</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — ランダム</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — ランダム</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>フェード</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>手書き</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>タイプライター</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>上昇</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ぼかし</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>写真を追加</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>自分の画像を 3 枚まで追加できます</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>自分の写真</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>書体</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>セリフ (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>サンセリフ (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>丸ゴシック</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>等幅</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>周辺減光</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>文字の現れ方</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>背景の動き</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>粒子</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>フィルムの粒子</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf は実行中です</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>このデスクトップにはアイコンを置くトレイがありません。設定を開くには、アプリケーションメニューで Morrowleaf を右クリックして「%1」を選ぶか、%2 を実行してください。</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>自動</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>写真を追加</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>自分の写真</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>自分の写真 %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>自分の写真 %1 を削除</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>名言</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>パレット、書体、サイズ、周辺減光、粒子</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>スリープ解除時とロック解除時に表示</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>%n 時間ごと</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>表示するたび</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>新しい名言</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>ログイン時に開く</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>閉じるまでの時間</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>内蔵リスト</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>空のままにすると内蔵の %n の名言を使います</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>提供元の URL</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>テスト中…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>名言と作者のフィールドを持つ JSON なら何でも使えます。ローカルファイルのパスも使えます。最後に取得した名言は保存されるので、オフラインでも表示されます。</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>読み取れない設定は %1 に保存されています</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>その提供元に名言は見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Morrowleaf の設定</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>外観を編集</translation>
    </message>
</context>
</TS>
