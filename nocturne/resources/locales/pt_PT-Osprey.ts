<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galeria da libnocturne – edição Osprey</translation>
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
</TS>
