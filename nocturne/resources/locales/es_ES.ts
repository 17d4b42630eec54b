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
</TS>
