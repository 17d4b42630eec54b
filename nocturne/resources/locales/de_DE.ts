<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Medien (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Medien (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galerie von libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Hintergrund %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Nach Namen filtern</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Texte der Bibliothek</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>Farbe auswählen</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
</TS>
