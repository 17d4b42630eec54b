<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>メディア (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>メディア (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne ギャラリー</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右から左へ</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>役割</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>アクティブ</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>リソース</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>名前で絞り込み</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%2 件中 %1 件の画像</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>ライブラリのテキスト</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>色の選択</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
</context>
</TS>
