<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>File multimediali (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>File multimediali (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galleria di libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da destra a sinistra</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Ruolo</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitato</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Sfondo %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Risorse</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Filtra per nome</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 di %2 immagini</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Testi della libreria</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>Seleziona colore</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
</context>
</TS>
