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
        <source>Flat default</source>
        <translation>Plano, predeterminado</translation>
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
</context>
<context>
    <name>GradientTool</name>
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
