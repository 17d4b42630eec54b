<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 갤러리 – Heron 에디션</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>라이브러리 고유 위젯</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>표준 컨트롤</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>가상 컨트롤러</translation>
    </message>
</context>
</TS>
