<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Médias (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Médias (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galerie de libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Arrière-plan %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressources</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Filtrer par nom</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 image(s) sur %2</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Textes de la bibliothèque</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>Choisir une couleur</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
</TS>
