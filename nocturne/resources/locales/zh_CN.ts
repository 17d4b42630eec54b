<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>媒体文件 (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>媒体文件 (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 控件展示</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>按名称筛选</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 / %2 张图像</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>库中的文本</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
</TS>
