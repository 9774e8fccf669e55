<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Floresta</translation>
    </message>
    <message>
        <source>Lake</source>
        <translation>Lago</translation>
    </message>
    <message>
        <source>Ridges</source>
        <translation>Serras</translation>
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
        <translation>abrir a janela de configurações em vez de mostrar a citação</translation>
    </message>
    <message>
        <source>start the program at login, and exit</source>
        <translation>iniciar o programa ao entrar na sessão e sair</translation>
    </message>
    <message>
        <source>check the built-in quotations, and exit</source>
        <translation>verificar as citações incluídas e sair</translation>
    </message>
    <message>
        <source>print this help, and exit</source>
        <translation>mostrar esta ajuda e sair</translation>
    </message>
    <message>
        <source>print the version, and exit</source>
        <translation>mostrar a versão e sair</translation>
    </message>
    <message>
        <source>Usage: morrowleaf [OPTION]</source>
        <extracomment>&quot;morrowleaf&quot; is the command</extracomment>
        <translation>Uso: morrowleaf [OPÇÃO]</translation>
    </message>
    <message>
        <source>Greets you with one quotation.</source>
        <translation>Recebe você com uma citação.</translation>
    </message>
    <message>
        <source>Other arguments are ignored. More is in the manual page, morrowleaf(1).</source>
        <translation>Outros argumentos são ignorados. Há mais na página de manual morrowleaf(1).</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Daily Quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Citação do dia</translation>
    </message>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Recebe você com uma citação</translation>
    </message>
    <message>
        <source>quote;quotation;greeting;wake;</source>
        <extracomment>Words that find the program, each followed by a semicolon</extracomment>
        <translation>citação;frase;saudação;boas-vindas;despertar;</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Editar aparência…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>For menus of programs and software centres</extracomment>
        <translation>Configurações…</translation>
    </message>
</context>
<context>
    <name>Greeting</name>
    <message>
        <source>Good morning</source>
        <translation>Bom dia</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Boa tarde</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Boa noite</translation>
    </message>
    <message>
        <source>Still awake</source>
        <extracomment>A kind greeting from 22 to 5 o&apos;clock; no question</extracomment>
        <translation>Ainda de pé</translation>
    </message>
</context>
<context>
    <name>Hint</name>
    <message>
        <source>esc to finish</source>
        <translation>esc para concluir</translation>
    </message>
    <message>
        <source>press any key</source>
        <translation>pressione qualquer tecla</translation>
    </message>
</context>
<context>
    <name>ManualPage</name>
    <message>
        <source>User Commands</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Comandos de usuário</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>NOME</translation>
    </message>
    <message>
        <source>greets you with one quotation</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>recebe você com uma citação</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>SINOPSE</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>DESCRIÇÃO</translation>
    </message>
    <message>
        <source>Morrowleaf has an icon in the panel&apos;s tray. When it starts, and whenever the computer wakes, the session becomes active or the screen is unlocked, it covers the screen on which you work with a quotation. A click or a key closes the quotation, which otherwise closes by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>O Morrowleaf tem um ícone na bandeja do painel. Quando é iniciado, e sempre que o computador desperta, a sessão se torna ativa ou a tela é desbloqueada, ele cobre com uma citação a tela em que você trabalha. Um clique ou uma tecla fecha a citação, que de outro modo se fecha sozinha.</translation>
    </message>
    <message>
        <source>While the session&apos;s message bus does not answer, there is no icon, not even in a tray of the X server.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Enquanto o barramento de mensagens da sessão não responde, não há ícone, nem mesmo em uma bandeja do servidor X.</translation>
    </message>
    <message>
        <source>The program runs once per session: starting it again makes the running program show the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>O programa é executado uma vez por sessão: iniciá-lo de novo faz o programa em execução mostrar a citação.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>OPÇÕES</translation>
    </message>
    <message>
        <source>Other arguments are ignored.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Outros argumentos são ignorados.</translation>
    </message>
    <message>
        <source>Open the settings window instead of showing the quotation.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Abrir a janela de configurações em vez de mostrar a citação.</translation>
    </message>
    <message>
        <source>Register the program to be started at login, print one line with the outcome, and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Registrar o programa para ser iniciado ao entrar na sessão, mostrar uma linha com o resultado e sair.</translation>
    </message>
    <message>
        <source>Check the built-in collection and its schedule, print one line, and exit. This resets the stored frequency of new quotations.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Verificar a coleção incluída e seu calendário, mostrar uma linha e sair. Isto redefine a frequência gravada de novas citações.</translation>
    </message>
    <message>
        <source>Print a list of the options and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mostrar uma lista das opções e sair.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Mostrar a versão e sair.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>STATUS DE SAÍDA</translation>
    </message>
    <message>
        <source>The program was asked to quit, or the program that runs already has received the request. &lt;b&gt;--register-login&lt;/b&gt; and &lt;b&gt;--selftest&lt;/b&gt; return 0 even if what they tried has failed; the line that they print says so.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Foi pedido ao programa que saísse, ou o programa já em execução recebeu o pedido. &lt;b&gt;--register-login&lt;/b&gt; e &lt;b&gt;--selftest&lt;/b&gt; retornam 0 mesmo que o que tentaram tenha falhado; a linha que mostram diz isso.</translation>
    </message>
    <message>
        <source>There is no display to show the quotation on, or it has too few colours.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Não há tela em que mostrar a citação, ou ela tem poucas cores.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>AMBIENTE</translation>
    </message>
    <message>
        <source>The language of the program, in this order. &lt;b&gt;LANGUAGE&lt;/b&gt; may list several languages, separated by colons; the first that the program knows is used. Without any, the program is in English.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>O idioma do programa, nesta ordem. &lt;b&gt;LANGUAGE&lt;/b&gt; pode listar vários idiomas, separados por dois-pontos; é usado o primeiro que o programa conhece. Sem nenhum, o programa fica em inglês.</translation>
    </message>
    <message>
        <source>The display. If both are set, Wayland is used if its compositor offers layer surfaces, and X11 otherwise.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>A tela. Se ambas estiverem definidas, o Wayland é usado se seu compositor oferecer superfícies de camada, e o X11 caso contrário.</translation>
    </message>
    <message>
        <source>Chooses the window system, as in every Qt program. If it is unset, the program chooses the best one for the session.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Escolhe o sistema de janelas, como em todo programa Qt. Se não estiver definida, o programa escolhe o melhor para a sessão.</translation>
    </message>
    <message>
        <source>Chooses the way in which the quotation is shown: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (a layer surface), &lt;b&gt;xwayland&lt;/b&gt; (a full-screen window) or &lt;b&gt;null&lt;/b&gt; (an ordinary window that leaves the desktop alone). Meant for tests.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Escolhe o modo como a citação é mostrada: &lt;b&gt;x11&lt;/b&gt;, &lt;b&gt;wayland&lt;/b&gt; (uma superfície de camada), &lt;b&gt;xwayland&lt;/b&gt; (uma janela em tela cheia) ou &lt;b&gt;null&lt;/b&gt; (uma janela comum que deixa a área de trabalho como está). Destinada a testes.</translation>
    </message>
    <message>
        <source>The message buses, if they are not at their usual places.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Os barramentos de mensagens, se não estiverem em seus lugares habituais.</translation>
    </message>
    <message>
        <source>The session of the login manager whose unlocking shows the quotation. If it is unset, the program finds its own.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>A sessão do gerenciador de sessões cujo desbloqueio mostra a citação. Se não estiver definida, o programa encontra a própria.</translation>
    </message>
    <message>
        <source>The desktop. KDE and GNOME colour the icon in the tray themselves.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>O ambiente de área de trabalho. O KDE e o GNOME colorem eles mesmos o ícone da bandeja.</translation>
    </message>
    <message>
        <source>Lets the window come to the front; set by the desktop that starts the program.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Permite que a janela venha para a frente; definida pelo ambiente que inicia o programa.</translation>
    </message>
    <message>
        <source>The folders of settings, of entries that start programs at login, of your own photos, and of the lock that keeps the program from running twice.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>As pastas das configurações, das entradas que iniciam programas ao entrar na sessão, das suas próprias fotos e da trava que impede o programa de ser executado duas vezes.</translation>
    </message>
    <message>
        <source>Writes what is said to the compositor to standard error.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Escreve na saída de erro padrão o que é dito ao compositor.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>ARQUIVOS</translation>
    </message>
    <message>
        <source>The settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>As configurações.</translation>
    </message>
    <message>
        <source>Starts the program at login.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Inicia o programa ao entrar na sessão.</translation>
    </message>
    <message>
        <source>Your own photos.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>As suas próprias fotos.</translation>
    </message>
    <message>
        <source>Remembers that the program has told you how to reach its settings.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Registra que o programa já informou como chegar às configurações.</translation>
    </message>
    <message>
        <source>The folder of what the program remembers by itself.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>A pasta do que o programa lembra por conta própria.</translation>
    </message>
    <message>
        <source>The proxies between the program and a source of quotations on the web, and the hosts that need none. If they are unset, those of the desktop are used.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Os proxies entre o programa e uma fonte de citações na web, e os servidores que não precisam de nenhum. Se não estiverem definidos, são usados os do ambiente de área de trabalho.</translation>
    </message>
    <message>
        <source>The certificates to trust instead of the system&apos;s.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Os certificados em que confiar em vez dos do sistema.</translation>
    </message>
    <message>
        <source>Switch on categories of the log, which is written to standard error: &lt;b&gt;morrowleaf.readers&lt;/b&gt; says when a source or a photo has not been read, the others are the toolkit&apos;s. If they switch on none, nothing is logged.</source>
        <extracomment>Of the manual page; &lt;b&gt;...&lt;/b&gt; is bold type, and what is in it stays</extracomment>
        <translation>Ativam categorias do registro, que é escrito na saída de erro padrão: &lt;b&gt;morrowleaf.readers&lt;/b&gt; avisa quando uma fonte ou uma foto não foi lida; as demais são as da biblioteca Qt. Se não ativarem nenhuma, nada é registrado.</translation>
    </message>
</context>
<context>
    <name>MenuActions</name>
    <message>
        <source>Show Today&apos;s Quote</source>
        <translation>Mostrar a citação do dia</translation>
    </message>
    <message>
        <source>Edit Appearance…</source>
        <translation>Editar aparência…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Greets you with one quotation</source>
        <extracomment>For software centres</extracomment>
        <translation>Recebe você com uma citação</translation>
    </message>
    <message>
        <source>When your computer wakes or you unlock it, Morrowleaf covers the screen for a moment: a slowly moving backdrop, a greeting, the date and one quotation that comes in line by line. A click or a key sends it away.</source>
        <extracomment>For software centres</extracomment>
        <translation>Quando seu computador desperta ou você o desbloqueia, o Morrowleaf cobre a tela por um momento: um fundo que se move devagar, uma saudação, a data e uma citação que surge linha por linha. Um clique ou uma tecla a dispensa.</translation>
    </message>
    <message>
        <source>Nine palettes, built-in photos and your own, five text animations</source>
        <extracomment>For software centres</extracomment>
        <translation>Nove paletas, fotos incluídas e as suas, cinco animações de texto</translation>
    </message>
    <message>
        <source>124 built-in quotations, or a source of your own: a web address or a file</source>
        <extracomment>For software centres</extracomment>
        <translation>124 citações incluídas, ou uma fonte sua: um endereço web ou um arquivo</translation>
    </message>
    <message>
        <source>Nothing runs while nothing is shown</source>
        <extracomment>For software centres</extracomment>
        <translation>Nada é executado enquanto nada é mostrado</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Midnight</source>
        <extracomment>The name of a palette, in the appearance editor under a tile of 48 points</extracomment>
        <translation>Noite</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Brasa</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Floresta</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Ameixa</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardósia</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Latão</translation>
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
        <translation>%1%</translation>
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
        <translation>Parado</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Respiração</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
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
        <translation>ZenQuotes — citação do dia</translation>
    </message>
    <message>
        <source>ZenQuotes — random</source>
        <translation>ZenQuotes — aleatória</translation>
    </message>
    <message>
        <source>DummyJSON — random</source>
        <translation>DummyJSON — aleatória</translation>
    </message>
</context>
<context>
    <name>TextAnim</name>
    <message>
        <source>Fade</source>
        <extracomment>How the lines of the quote come in</extracomment>
        <translation>Esmaecer</translation>
    </message>
    <message>
        <source>Handwrite</source>
        <translation>Manuscrito</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Máquina de escrever</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desfoque</translation>
    </message>
</context>
<context>
    <name>morrowleaf::AddTile</name>
    <message>
        <source>Add a photo</source>
        <translation>Adicionar uma foto</translation>
    </message>
    <message>
        <source>Add one of your own images, up to three</source>
        <translation>Adicione imagens suas, até três</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Inspector</name>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Your photo</source>
        <translation>Sua foto</translation>
    </message>
    <message>
        <source>Typeface</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Serif (New York)</source>
        <translation>Com serifa (New York)</translation>
    </message>
    <message>
        <source>Sans (SF Pro)</source>
        <translation>Sem serifa (SF Pro)</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arredondada</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Monoespaçada</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vinheta</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparência</translation>
    </message>
    <message>
        <source>Liquid Glass</source>
        <translation>Liquid Glass</translation>
    </message>
    <message>
        <source>Text reveal</source>
        <translation>Entrada do texto</translation>
    </message>
    <message>
        <source>Screen motion</source>
        <translation>Movimento do fundo</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Granulação</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Granulação de filme</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>morrowleaf::Introduction</name>
    <message>
        <source>Morrowleaf is running</source>
        <translation>O Morrowleaf está em execução</translation>
    </message>
    <message>
        <source>This desktop has no tray for its icon. For the settings, right-click Morrowleaf in the menu of programs and choose “%1”, or run %2.</source>
        <extracomment>%1 is &quot;Settings…&quot;; %2 is a command</extracomment>
        <translation>Esta área de trabalho não tem bandeja para o ícone. Para as configurações, clique com o botão direito em Morrowleaf no menu de aplicativos e escolha “%1”, ou execute %2.</translation>
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
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Add a Photo</source>
        <translation>Adicionar uma foto</translation>
    </message>
</context>
<context>
    <name>morrowleaf::PhotoGroup</name>
    <message>
        <source>Your photo</source>
        <translation>Sua foto</translation>
    </message>
    <message>
        <source>Your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Sua foto %1</translation>
    </message>
    <message>
        <source>Remove your photo %1</source>
        <extracomment>%1 is 1, 2 or 3</extracomment>
        <translation>Remover sua foto %1</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsView</name>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamento</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Citações</translation>
    </message>
    <message>
        <source>Palette, typeface, size, vignette and grain</source>
        <translation>Paleta, fonte, tamanho, vinheta e granulação</translation>
    </message>
    <message>
        <source>Show on wake and unlock</source>
        <translation>Mostrar ao despertar e ao desbloquear</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>A cada hora</numerusform>
            <numerusform>A cada %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>Every time it shows</source>
        <extracomment>A new quote at every showing</extracomment>
        <translation>Sempre que aparece</translation>
    </message>
    <message>
        <source>New quote</source>
        <extracomment>How often the quote changes</extracomment>
        <translation>Nova citação</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir ao iniciar sessão</translation>
    </message>
    <message>
        <source>Close after</source>
        <extracomment>Followed by a number of seconds</extracomment>
        <translation>Fechar após</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Built-in list</source>
        <translation>Lista incluída</translation>
    </message>
    <message numerus="yes">
        <source>Leave empty for the built-in %n quotes</source>
        <translation>
            <numerusform>Deixe em branco para a citação incluída</numerusform>
            <numerusform>Deixe em branco para as %n citações incluídas</numerusform>
        </translation>
    </message>
    <message>
        <source>Source URL</source>
        <translation>Endereço da fonte</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Testando…</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testar</translation>
    </message>
    <message>
        <source>Any JSON with a quote and author field works, plus a local file path. The last fetched quote is cached, so it still shows offline.</source>
        <translation>Serve qualquer JSON com um campo de citação e um de autor, e também o caminho de um arquivo local. A última citação carregada é guardada e, por isso, aparece mesmo sem conexão.</translation>
    </message>
    <message>
        <source>Unreadable settings are kept in %1</source>
        <translation>As configurações ilegíveis foram guardadas em %1</translation>
    </message>
    <message>
        <source>No quote found at that source.</source>
        <translation>Nenhuma citação encontrada nessa fonte.</translation>
    </message>
</context>
<context>
    <name>morrowleaf::SettingsWindow</name>
    <message>
        <source>Morrowleaf Settings</source>
        <translation>Configurações do Morrowleaf</translation>
    </message>
</context>
<context>
    <name>morrowleaf::StandIn</name>
    <message>
        <source>Edit Appearance</source>
        <translation>Editar aparência</translation>
    </message>
</context>
</TS>
