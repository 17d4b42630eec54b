<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Multimédia (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Multimédia (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galeria da libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da direita para a esquerda</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Função</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Ativo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativo</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Fundo %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Filtrar por nome</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 de %2 imagens</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Textos da biblioteca</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;Dois algarismos não têm distintivo</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;Ir para a câmara um</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;Ir para a câmara dois</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;Ir para a câmara três</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>0, 1, 50 e 100 de 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>Uma imagem maior do que a sua janela</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>Um único separador sem texto</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>Todas as fontes estão novamente ligadas.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Setas</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>No máximo</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>No mínimo, mais e menos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>Relevo automático</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>Ponteiro sobre Recuar</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>Recuar premido</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>Ao lado do conteúdo</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>Pasta %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Caixa</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>Memória intermédia</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>Barramento %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>Barramento A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Botões</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Botões e etiquetas</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Câmara 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Câmara 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>Caixas de verificação</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Caixas de verificação e botões de opção</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Escolhido</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>Clique nesta etiqueta</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>Etiqueta clicável</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clipe</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clipe %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>Nome do clipe</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>Leitor de clipes</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Caixas de combinação</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>Ligação de comando</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Contentores</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinido</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>Botões com atraso</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>Botões rotativos</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dissolução</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>Baixo premido</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Editável</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>Editável, com ícones</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efeitos</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Flat default</source>
        <translation>Plano, predefinido</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>Com foco</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Tipos de letra</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>Meio segundo</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>Ponteiro sobre a pega</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>Pega premida</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>Linha horizontal</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>Barras de progresso horizontais</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>Controlos deslizantes horizontais</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>Com o ponteiro por cima</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Ícone</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Apenas ícone</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>Em uso</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Invertido</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>Nível, hora, data</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimédia</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>Menu imediato</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>Menu na seta</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mistura</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>Seleção mista</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>Sem botões</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>Sem número</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>Sem marcas</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>Não comutável: sem atraso</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Não escolhido</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>Não editável</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>Não editável, editável</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>Não editável, com ícones</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>No ar</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>Ligado, com ponteiro</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>Ligado, premido</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aberto</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Listas abertas</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>Abrir o último espetáculo</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>Outros com a mesma moldura</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Sobre %1</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>Sobre o conteúdo</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>Parcialmente marcado</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Simples</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>Mais e menos</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Posição X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Posição Y</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Premido</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>Barras de progresso</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>Estilo proxy</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Botões de pressão</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>Botões de opção, definidos por id</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>Elevado</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>Composição</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>Barras de deslocamento</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>Controlos deslizantes e rotativos</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>Caixas de incremento</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Transmissão</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Rebaixado</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Interruptores</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Pôr no ar</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>Texto ao lado do ícone</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>Os separadores com texto têm a mesma largura; um sem texto preenche a barra.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>Texto sob o ícone</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>Marcas em cima</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>Marcas em baixo</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>Marcas dos dois lados</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>Apenas título</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Títulos</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>Botão de ferramenta</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Botões de ferramenta</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>Dois segundos</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Não marcado</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>Ponteiro sobre Cima</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>Cima premido</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>Barras de progresso verticais</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>Controlos deslizantes verticais</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>Vertical, dois lados</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>Vertical, invertido</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>Vertical, sem marcas</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>Vertical, marcas à esquerda</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>Vertical, marcas à direita</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Cortina</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Com ícone</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>Com menu</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>Com entalhes</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>Sem moldura</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Sem texto</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>Cíclico</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>E&amp;spetáculo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>Falta uma fonte.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>Um título demasiado longo</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>Uma dica</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Em cima</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>Em cima, segunda</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>Em cima, segunda linha</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Em baixo</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Câmara %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>Câmaras, leitores e títulos</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>Marcado, desativado</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>Marcado, com ícone</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>Fecháveis, móveis, com ícones</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>Copiar as fontes do último</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>Diálogos e dicas</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>Modo documento, um separador desativado</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>Espetáculo da noite</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primeira</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>Caixas de grupo e molduras</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>Janela inativa</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chave</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Chaves</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>Campos de texto</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>Listas, tabelas e árvores</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registo</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Janela principal</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>Ponteiro sobre Maximizar</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>Maximizar premido</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Maximizada</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Minimizada</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>Janela minimizada</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Misturador</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>Mais separadores do que espaço</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>Nome do espetáculo</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>Novo espetáculo</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Não marcado</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>Não marcado, com ícone</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>Nada mais</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>Um de dois</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Saídas</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Painel</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>Lançar os títulos.
Fundir para preto.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>Retângulos de seleção</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Guardar antes de fechar?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segunda</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secção</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>Várias linhas</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>Janela enrolada</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Espetáculo %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Fonte %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fontes</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>Painel com estilo</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Separadores</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>O item predefinido</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>O outro</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>O alinhamento foi alterado desde a última gravação.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>Título alinhado à direita</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>Triangular, em cima</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>Triangular, em baixo</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>Triangular, à esquerda</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>Triangular, à direita</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>Título vertical</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>Como se chama?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>Janela com ajuda</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>Janelas numa janela</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>Com botão de limpar</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>Com uma sugestão</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>Com uma seleção</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>Com ícone</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>Selecionar cor</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
</context>
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>Inferior</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Superior</translation>
    </message>
</context>
</TS>
