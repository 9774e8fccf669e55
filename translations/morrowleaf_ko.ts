<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>BuiltinPhoto</name>
    <message>
        <source>Aurora</source>
        <extracomment>The names of the built-in photos for screen readers</extracomment>
        <translation>오로라</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>모래 언덕</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>숲</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>호수</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>산등성이</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>바다</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>open the settings window instead of showing the quotation</source>
        <translation>명언을 표시하지 않고 설정 창 열기</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>로그인할 때 프로그램을 시작하도록 하고 끝내기</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>내장 명언을 검사하고 끝내기</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>이 도움말을 출력하고 끝내기</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>버전을 출력하고 끝내기</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>사용법: morrowleaf [옵션]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>명언 한 구절로 맞이합니다.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>다른 인수는 무시합니다. 자세한 내용은 설명서 페이지 morrowleaf(1)에 있습니다.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>오늘의 명언</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>명언 한 구절로 맞이합니다</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>명언;격언;인용구;인사;깨우기;quote;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>모양 편집…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>설정…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>좋은 아침입니다</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>좋은 오후입니다</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>좋은 저녁입니다</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>아직 깨어 있군요</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc를 눌러 완료</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>아무 키나 누르세요</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>사용자 명령</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>이름</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>명언 한 구절로 맞이합니다</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>개요</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>설명</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Morrowleaf는 패널의 트레이에 아이콘을 표시합니다. 시작할 때, 그리고 컴퓨터가 깨어나거나 세션이 활성화되거나 화면 잠금이 풀릴 때마다 작업 중인 화면을 명언으로 덮습니다. 클릭하거나 키를 누르면 명언이 닫히며, 그러지 않으면 저절로 닫힙니다.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>세션의 메시지 버스가 응답하지 않는 동안에는 X 서버의 트레이에도 아이콘이 없습니다.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>프로그램은 세션마다 하나만 실행됩니다. 다시 시작하면 실행 중인 프로그램이 명언을 표시합니다.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>다른 인수는 무시합니다.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>명언을 표시하지 않고 설정 창을 엽니다.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>로그인할 때 시작하도록 프로그램을 등록하고, 결과를 한 줄 출력한 다음 끝냅니다.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>내장 명언 모음과 그 일정을 검사하고, 한 줄을 출력한 다음 끝냅니다. 저장된 새 명언 주기가 초기화됩니다.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>옵션 목록을 출력하고 끝냅니다.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>버전을 출력하고 끝냅니다.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>종료 상태</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>프로그램이 종료 요청을 받았거나, 이미 실행 중인 프로그램이 요청을 받았습니다. &lt;b&gt;--register-login&lt;/b&gt; 및 &lt;b&gt;--selftest&lt;/b&gt; 옵션은 시도한 일이 실패해도 0을 반환하며, 출력하는 줄에 그 사실을 알립니다.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>명언을 표시할 디스플레이가 없거나 디스플레이의 색상이 너무 적습니다.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>환경 변수</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>프로그램의 언어이며, 이 순서로 확인합니다. &lt;b&gt;LANGUAGE&lt;/b&gt; 변수에는 여러 언어를 콜론으로 구분하여 나열할 수 있고, 프로그램이 아는 첫 번째 언어를 사용합니다. 아는 언어가 없으면 영어를 사용합니다.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>디스플레이입니다. 둘 다 설정되어 있으면, 컴포지터가 레이어 서피스를 제공하는 경우 Wayland를 사용하고 그렇지 않으면 X11을 사용합니다.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>모든 Qt 프로그램에서처럼 창 시스템을 선택합니다. 설정되어 있지 않으면 프로그램이 세션에 가장 알맞은 것을 선택합니다.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>명언을 표시하는 방식을 선택합니다. &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt;(레이어 서피스), &lt;b&gt;xwayland&lt;/b&gt;(전체 화면 창), &lt;b&gt;null&lt;/b&gt;(데스크톱을 건드리지 않는 일반 창) 중 하나입니다. 테스트용입니다.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>메시지 버스가 일반적인 위치에 있지 않을 때의 위치입니다.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>잠금을 풀 때 명언을 표시할 로그인 관리자의 세션입니다. 설정되어 있지 않으면 프로그램이 자신의 세션을 찾습니다.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>데스크톱 환경입니다. KDE와 그놈은 트레이의 아이콘에 직접 색을 입힙니다.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>창이 맨 앞으로 나올 수 있게 합니다. 프로그램을 시작하는 데스크톱이 설정합니다.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>설정, 로그인할 때 프로그램을 시작하는 항목, 내 사진, 그리고 프로그램이 두 번 실행되지 않게 하는 잠금의 폴더입니다.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>컴포지터에 전달되는 내용을 표준 오류에 기록합니다.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>파일</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>설정입니다.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>로그인할 때 프로그램을 시작합니다.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>내 사진입니다.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>설정을 여는 방법을 이미 알려 드렸음을 기억합니다.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>프로그램이 스스로 기억하는 것을 두는 폴더.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>프로그램과 웹에 있는 명언 출처 사이의 프록시, 그리고 프록시가 필요 없는 호스트입니다. 설정되어 있지 않으면 데스크톱의 것을 사용합니다.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>시스템의 인증서 대신 신뢰할 인증서입니다.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>표준 오류에 기록되는 로그의 범주를 켭니다. &lt;b&gt;morrowleaf.readers&lt;/b&gt;는 출처나 사진을 읽지 못했을 때 알리고, 나머지는 Qt 라이브러리의 범주입니다. 아무것도 켜지 않으면 아무것도 기록되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>오늘의 명언 보기</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>모양 편집…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>명언 한 구절로 맞이합니다</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>컴퓨터가 깨어나거나 잠금을 풀면 Morrowleaf가 잠시 화면을 덮습니다. 천천히 움직이는 배경, 인사말, 날짜, 그리고 한 줄씩 나타나는 명언 한 구절. 클릭하거나 키를 누르면 사라집니다.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>아홉 가지 팔레트, 내장 사진과 내 사진, 다섯 가지 글자 애니메이션</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>내장 명언 124개, 또는 직접 고른 출처: 웹 주소나 파일</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>아무것도 표시하지 않을 때는 아무것도 실행되지 않습니다</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>한밤</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>잉걸불</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>숲</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>자두</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>슬레이트</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>황동</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>제비꽃</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>종이</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>누아르</translation>
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
        <translation>%1초</translation>
    </message>
</context>
<context>
    <name>ScreenAnim</name>
    <message>
        <source>Drift</source>
        <extracomment>How the backdrop moves</extracomment>
        <translation>흐름</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>호흡</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>오로라</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대</translation>
    </message>
</context>
<context>
    <name>SourcePreset</name>
    <message>
        <source>ZenQuotes — quote of the day</source>
        <translation>ZenQuotes — 오늘의 명언</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — 무작위</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — 무작위</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>페이드</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>손글씨</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>타자기</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>떠오르기</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>흐림</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>사진 추가</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>내 이미지를 세 장까지 추가할 수 있습니다</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>내 사진</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>글꼴</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>세리프(New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>산세리프(SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>둥근 글꼴</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>고정폭</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>비네트</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>투명도</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>글자 나타내기</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>배경 움직임</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>그레인</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>필름 그레인</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>Morrowleaf 실행 중</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>이 데스크톱에는 아이콘을 둘 트레이가 없습니다. 설정을 열려면 프로그램 메뉴에서 Morrowleaf를 오른쪽 클릭하고 “%1”을(를) 선택하거나 %2 명령을 실행하세요.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PaletteGroup</name>
    <message>
        <source>Palette</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>The palette of the day, under a tile of 48 points</extracomment>
        <translation>자동</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoChooser</name>
    <message>
        <source>Images</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>사진 추가</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>내 사진</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>내 사진 %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>내 사진 %1 제거</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>명언</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>팔레트, 글꼴, 크기, 비네트, 그레인</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>깨어나거나 잠금을 풀 때 보기</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>%n시간마다</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>표시할 때마다</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>새 명언</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>로그인할 때 열기</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>닫을 때까지의 시간</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>사전 설정</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>내장 목록</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>비워 두면 내장 명언 %n개를 사용합니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>출처 주소</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>테스트하는 중…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>명언과 저자 필드가 있는 JSON이면 모두 사용할 수 있고, 로컬 파일의 경로도 사용할 수 있습니다. 마지막으로 가져온 명언은 저장되므로 오프라인에서도 표시됩니다.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>읽을 수 없는 설정은 %1에 보관되어 있습니다</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>이 출처에서 명언을 찾지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Morrowleaf 설정</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>모양 편집</translation>
    </message>
</context>
</TS>
