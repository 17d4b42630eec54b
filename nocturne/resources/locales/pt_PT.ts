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
        <source>Exact</source>
        <translation>Exato</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>Legível</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>Atenuado</translation>
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
        <translation>Só título</translation>
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
        <translation>Sem marca</translation>
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
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>Rampa: prima para adicionar, arraste para mover, arraste para fora para remover, duplo clique para uma cor</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>Opacidade da cor escolhida</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>Botões: clique para um diálogo, arraste uma cor para outra</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(aceite)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(pré-visualização)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>Barras e pontos</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Piscar</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Câmaras</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>Palco, esquerda</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>Palco, direita</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clipes</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Introdução</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Entrevista</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Gravador</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Nenhuma saída</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>Todas as saídas</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>Indeterminado</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>Esta noite em direto do estúdio</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>Agrupada</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>A sua lista</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>Nenhum marcado</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>Alguns marcados</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>Todos marcados</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>Sem itens</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>A lista delas</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>Tipo de letra com pré-visualização</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>Caixas de combinação com grupos e marcas</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pergunta</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Caixas de mensagem</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>Pôr o próximo cue no ar?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>Usar textos de botão próprios a partir de agora</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>Pôr no ar</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>Balões</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Seta</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Em cima à esquerda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Em cima à direita</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Em baixo à esquerda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Em baixo à direita</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>O disco de gravação tem espaço para mais cinco minutos.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>Seletores de ficheiro</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Ficheiro multimédia</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>Vídeos recentes</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Comunicado</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>Barras pretas</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>Atraso do redimensionamento</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margem</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>Diálogos e seletores</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>Os ficheiros largados aparecem em baixo</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(não é um ficheiro local)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Largue ficheiros aqui</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>Ícones com o delegado de itens</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>Arraste um clipe para outro.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>fim da lista</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 largado em: %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>O movimento é comunicado, a aplicação move</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>Linhas arrastadas tal como aparecem</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>Arraste as linhas selecionadas.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>Listas para arrastar e largar</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 mensagens</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Aprender</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>Abrir uma porta virtual</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>Nenhuma porta está aberta.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>Nenhum serviço MIDI está em execução, ou não tem portas.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 está aberta.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 já não existe.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>Pedida a porta virtual %1.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>Enviar para a saída</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>Nota (manter premido)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>Controlador 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>Aprender uma mensagem para o nível</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>Simular um fluxo de 10 000 mensagens por segundo</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Anéis</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>Rodas de espera</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>Rodar a cinzenta</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Aparar um clipe</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Fotograma %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>Entrada %1   Saída %2   Duração %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>Pegas do intervalo</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>Movimento simétrico</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Seguimento contínuo</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Intervalos</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>As pegas cruzam-se</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>As pegas encontram-se</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>As pegas mantêm distância</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>Com marcas</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Intervalos</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: acionado</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>Clique num campo e prima as teclas</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>Próximo cue</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>Blackout</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>Os atalhos são os desta página. Funcionam enquanto nenhum campo tiver o foco.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>Clicar para saltar, arrastar, passar por cima</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>Sem salto</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>Pôr o nível em 30 sem sinal</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>Faders</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Controlos deslizantes</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>Campo de procura, vazio</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>entrevista</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>Campo de procura, com texto</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>Genérico de abertura, segunda versão</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>Etiqueta que cabe</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>Cortada à direita</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>Cortada ao meio</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>Cortada à esquerda</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>Em edição</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>Clique num nome para o editar.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Nome alterado para «%1»</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Campos de texto</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(nova edição)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>Arraste sobre um número; clique para o escrever</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Ctrl duplica a velocidade do arrasto, Shift reduz para metade.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>Mostrar a seleção mista como --</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>Abrir a porta</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>Os próprios da biblioteca</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>Controlos padrão</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Controlador simulado</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>Ponto de cor %1</translation>
    </message>
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
