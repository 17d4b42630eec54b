<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Медиафайлы (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Медиафайлы (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Галерея libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Справа налево</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Роль</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Активный</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивный</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Фон %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ресурсы</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Фильтр по имени</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>Изображений: %1 из %2</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Тексты библиотеки</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>Выбор цвета</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
</context>
</TS>
