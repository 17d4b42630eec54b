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
</TS>
