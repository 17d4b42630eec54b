<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Multimedia (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Multimedia (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galería de libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exacto</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>Legible</translation>
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
        <translation>Función</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Fondo %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Filtrar por nombre</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 de %2 imágenes</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Textos de la biblioteca</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;Dos cifras no llevan distintivo</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;Ir a la cámara uno</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;Ir a la cámara dos</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;Ir a la cámara tres</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>0, 1, 50 y 100 de 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>Una imagen mayor que su ventana</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>Una sola pestaña sin texto</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>Todas las fuentes vuelven a estar conectadas.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>En el máximo</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>En el mínimo, más y menos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>Realce automático</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>Puntero sobre Atrás</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>Atrás pulsado</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>Junto al contenido</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Caja</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>Búfer</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>Bus %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>Bus A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Botones y etiquetas</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Cámara 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Cámara 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>Casillas</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Casillas y botones de opción</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Elegido</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>Haga clic en esta etiqueta</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>Etiqueta pulsable</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>Nombre del clip</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>Reproductor de clips</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Cuadros combinados</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>Vínculo de comando</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Contenedores</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>Botones con retardo</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>Diales</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Disolvencia</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>Abajo pulsado</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Editable</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>Editable, con iconos</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>Con foco</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>Medio segundo</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>Puntero sobre el tirador</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>Tirador pulsado</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>Línea horizontal</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>Barras de progreso horizontales</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>Deslizadores horizontales</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>Con el puntero encima</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Solo icono</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>En uso</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Invertido</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>Nivel, hora, fecha</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>Menú inmediato</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>Menú en la flecha</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mezcla</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>Selección mixta</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>Sin botones</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>Sin número</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>Sin marcas</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>No conmutable: sin retardo</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>No elegido</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>No editable</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>No editable, editable</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>No editable, con iconos</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>En el aire</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>Activado, con puntero</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>Activado, pulsado</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abierto</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Listas abiertas</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>Abrir el último espectáculo</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>Otros con el mismo marco</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Sobre %1</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>Sobre el contenido</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>Parcialmente marcado</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Sencillo</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>Más y menos</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Posición X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Posición Y</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Pulsado</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>Barras de progreso</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>Estilo proxy</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Botones pulsadores</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>Botones de opción, por identificador</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>En relieve</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>Renderizado</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>Barras de desplazamiento</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>Deslizadores y diales</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>Cuadros de número</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Transmisión</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Hundido</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Interruptores</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Al aire</translation>
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
        <translation>Texto junto al icono</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>Las pestañas con texto tienen un mismo ancho; una sin texto llena la barra.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>Texto bajo el icono</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>Marcas arriba</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>Marcas abajo</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>Marcas a ambos lados</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>Solo título</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Títulos</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>Botón de herramienta</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Botones de herramienta</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>Dos segundos</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Sin marcar</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>Puntero sobre Arriba</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>Arriba pulsado</translation>
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
        <translation>Barras de progreso verticales</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>Deslizadores verticales</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>Vertical, ambos lados</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>Vertical, invertido</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>Vertical, sin marcas</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>Vertical, marcas a la izquierda</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>Vertical, marcas a la derecha</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Cortinilla</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Con icono</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>Con menú</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>Con muescas</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>Sin marco</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Sin texto</translation>
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
        <translation>E&amp;spectáculo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>Falta una fuente.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>Un título demasiado largo</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>Una sugerencia</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>Arriba, segunda</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>Arriba, segunda línea</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Cámara %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>Cámaras, reproductores y títulos</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>Marcado, desactivado</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>Marcado, con icono</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>Se cierran y se mueven, con iconos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>Copiar las fuentes del último</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>Diálogos y sugerencias</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>Modo documento, una pestaña desactivada</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>Espectáculo de la noche</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primera</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>Cuadros de grupo y marcos</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>Ventana inactiva</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Incrustación</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Incrustaciones</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>Campos de texto</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>Listas, tablas y árboles</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Ventana principal</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>Puntero sobre Maximizar</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>Maximizar pulsado</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Maximizada</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menús</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Minimizada</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>Ventana minimizada</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mezclador</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>Más pestañas que espacio</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>Nombre del espectáculo</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>Nuevo espectáculo</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>No marcado</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>No marcado, con icono</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>Nada más</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>Uno de dos</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Salidas</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Previo</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>Lanzar los títulos.
Fundido a negro.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>Marcos de selección</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>¿Guardar antes de cerrar?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segunda</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>Varias líneas</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>Ventana enrollada</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Espectáculo %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Fuente %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>Panel con estilo</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>El elemento predeterminado</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>El otro</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>La escaleta ha cambiado desde la última vez que se guardó.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>Título alineado a la derecha</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>Triangular, arriba</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>Triangular, abajo</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>Triangular, izquierda</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>Triangular, derecha</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>Título vertical</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>¿Cómo se llama?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>Ventana con ayuda</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>Ventanas en una ventana</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>Con botón de borrado</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>Con indicación</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>Con selección</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>Con icono</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>Rampa: pulse para añadir, arrastre para mover, arrastre fuera para quitar, doble clic para un color</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>Opacidad del color elegido</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>Botones: haga clic para un diálogo, arrastre un color sobre otro</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(aceptado)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(vista previa)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>Barras y puntos</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Parpadear</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cámaras</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>Escenario, izquierda</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>Escenario, derecha</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Cabecera</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Entrevista</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Grabador</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Ninguna salida</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>Todas las salidas</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>Indeterminado</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>Esta noche en directo desde el estudio</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>Agrupado</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>Su lista</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>Ninguno marcado</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>Algunos marcados</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>Todos marcados</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>Sin elementos</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>Su lista</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>Fuente con vista previa</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>Cuadros combinados con grupos y casillas</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Cuadros de mensaje</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>¿Pasar el próximo cue al aire?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>Usar textos de botón propios desde ahora</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>Pasar al aire</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>Globos</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>En el disco de grabación queda espacio para cinco minutos más.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>Selectores de archivo</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Archivo multimedia</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>Vídeos recientes</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Notificado</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>Bandas negras</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>Retardo al redimensionar</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margen</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>Diálogos y selectores</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>Los archivos que suelte aparecen abajo</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(no es un archivo local)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Suelte archivos aquí</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>Iconos con el delegado de elementos</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>Arrastre un clip sobre otro.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>final de la lista</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 se soltó en: %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>Se notifica el movimiento, la aplicación mueve</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>Filas arrastradas tal como se ven</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>Arrastre las filas seleccionadas.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>Listas para arrastrar y soltar</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 mensajes</translation>
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
        <translation>Salida</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>Abrir un puerto virtual</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>No hay ningún puerto abierto.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>No hay ningún servicio MIDI en marcha, o no tiene puertos.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 está abierto.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 ya no está.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>Se ha solicitado el puerto virtual %1.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>Enviar a la salida</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>Nota (mantener pulsado)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>Controlador 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>Aprender un mensaje para el nivel</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>Simular un flujo de 10 000 mensajes por segundo</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Anillos</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>Ruedas de espera</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>Girar la gris</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Recortar un clip</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Fotograma %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>Entrada %1   Salida %2   Duración %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>Tiradores del intervalo</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>Movimiento simétrico</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Seguimiento continuo</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Tramos</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>Los tiradores se cruzan</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>Los tiradores se encuentran</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>Los tiradores guardan distancia</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>Con marcas</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Intervalos</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: activado</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>Haga clic en un campo y pulse las teclas</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>Próximo cue</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>Los atajos son los de esta página. Funcionan mientras ningún campo tenga el foco.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>Clic para saltar, arrastrar, pasar por encima</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>Sin salto</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>Poner el nivel en 30 sin señal</translation>
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
        <translation>Deslizadores</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>Campo de búsqueda, vacío</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>entrevista</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>Campo de búsqueda, con texto</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>Títulos de apertura, segunda versión</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>Etiqueta que cabe</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>Recortada a la derecha</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>Recortada en el centro</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>Recortada a la izquierda</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>En edición</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>Haga clic en un nombre para editarlo.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Se le cambió el nombre a «%1»</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Campos de texto</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(nueva edición)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>Arrastre sobre un número; haga clic para escribirlo</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Ctrl duplica la velocidad del arrastre, Mayús la reduce a la mitad.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>Mostrar la selección mixta como --</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>Abrir el puerto</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vista general</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>Los propios de la biblioteca</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>Controles estándar</translation>
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
        <translation>Parada de color %1</translation>
    </message>
    <message>
        <source>Select color</source>
        <translation>Seleccionar color</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
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
        <translation>Posición</translation>
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
