<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 控件展示 – Marlin 版</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>本库控件</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>标准控件</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>模拟控制器</translation>
    </message>
</context>
</TS>
