<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 갤러리 – Heron 에디션</translation>
    </message>
</context>
</TS>
