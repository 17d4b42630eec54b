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
        <source>Exact</source>
        <translation>Точный</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>Читаемый</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>Приглушённый</translation>
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
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;Две цифры — без значка</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;Перейти к камере один</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;Перейти к камере два</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;Перейти к камере три</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>0, 1, 50 и 100 из 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>Изображение больше своего окна</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>Одна вкладка без текста</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>Все источники снова подключены.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Стрелки</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>На максимуме</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>На минимуме, плюс и минус</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>Автоподъём</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>Указатель на «Назад»</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>«Назад» нажата</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>Рядом с содержимым</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>Папка %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>Буфер</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>Шина %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>Шина A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Кнопки</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Кнопки и надписи</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Камера 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Камера 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>Флажки</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Флажки и переключатели</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Отмечено</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Выбрано</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>Щёлкните эту надпись</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>Нажимаемая надпись</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Клиенты</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Клип</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Клип %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>Имя клипа</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>Проигрыватель клипов</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Выпадающие списки</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>Командная ссылка</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Контейнеры</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Склейка</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>Кнопки с задержкой</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>Ручки</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Наплыв</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>«Вниз» нажата</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Редактируемый</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>Редактируемый, со значками</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Эффекты</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Плоская</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>В фокусе</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Шрифты</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>Полсекунды</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>Указатель на ручке</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>Ручка нажата</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Горизонтально</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>Горизонтальная линия</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>Горизонтальные индикаторы хода</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>Горизонтальные ползунки</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>Под указателем</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Значок</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Только значок</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>Используется</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Обратный</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>Уровень, время, дата</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Цикл</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Медиа</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>Меню сразу</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>Меню по стрелке</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Микс</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>Смешанный выбор</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>Без кнопок</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>Без номера</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>Без делений</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>Без фиксации: нет задержки</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Не выбрано</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>Нередактируемый</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>Нередактируемый, редактируемый</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>Нередактируемый, со значками</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>В эфире</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>Включено, под указателем</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>Включено, нажато</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыт</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Открытые списки</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>Открыть последнее шоу</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>Другие с той же рамкой</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Поверх %1</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>Поверх содержимого</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>Отмечено частично</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Простой</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>Плюс и минус</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Положение X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Положение Y</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Нажато</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>Индикаторы хода</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>Прокси-стиль</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Нажимные кнопки</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>Переключатели, выбор по номеру</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>Выпуклый</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>Рендеринг</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>Полосы прокрутки</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>Ползунки и ручки</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>Счётчики</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Поток</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Вдавленный</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Выключатели</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>В эфир</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>Высокий</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>Текст рядом со значком</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>Вкладки с текстом одной ширины; вкладка без текста занимает всю полосу.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>Текст под значком</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>Деления сверху</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>Деления снизу</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>Деления с обеих сторон</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>Без флажка</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Титры</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>Кнопка инструмента</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Кнопки инструментов</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>Две секунды</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Снято</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>Указатель на «Вверх»</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>«Вверх» нажата</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Значения</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Вертикально</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>Вертикальные индикаторы хода</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>Вертикальные ползунки</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>Вертикально, с обеих сторон</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>Вертикально, обратный</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>Вертикально, без делений</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>Вертикально, деления слева</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>Вертикально, деления справа</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Шторка</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Со значком</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>С меню</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>С насечками</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>Без рамки</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Без текста</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>По кругу</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Шоу</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>Отсутствует источник.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>Слишком длинный заголовок</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>Подсказка</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>Сверху, вторая</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>Сверху, вторая строка</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Снизу</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Камера %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>Камеры, проигрыватели и титры</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>Отмечено, отключено</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>Отмечено, со значком</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>Закрываемые, перемещаемые, со значками</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>Скопировать источники последнего</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>Диалоги и подсказки</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>Режим документа, одна вкладка отключена</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>Вечернее шоу</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Первое</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>Группы и рамки</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержать</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>Неактивное окно</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Внутри</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Кей</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Кеи</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>Поля ввода</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>Списки, таблицы и деревья</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Главное окно</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>Указатель на «Развернуть»</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>«Развернуть» нажата</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Развёрнуто</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Свёрнуто</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>Свёрнутое окно</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Микшер</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>Вкладок больше, чем места</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>Название шоу</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>Новое шоу</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Не отмечено</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>Не отмечено, со значком</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>Больше ничего</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>Одно из двух</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Открыть…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Выходы</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Панель</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>Пустить титры.
Уйти в чёрное.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>Рамки выделения</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Сохранить перед закрытием?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Второе</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Раздел</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>Несколько строк</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>Свёрнутое в заголовок окно</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Шоу %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Источник %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Источники</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>Стилевая панель</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Вкладки</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>Пункт по умолчанию</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>Другой</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>План эфира изменён после последнего сохранения.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>Заголовок справа</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>Треугольные, сверху</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>Треугольные, снизу</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>Треугольные, слева</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>Треугольные, справа</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>Вертикальный заголовок</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>Как оно называется?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>Окно со справкой</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>Окна в окне</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>С кнопкой очистки</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>С подсказкой</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>С выделением</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>Со значком</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>Градиент: нажмите — добавить, перетащите — сдвинуть, утащите прочь — удалить, двойной щелчок — цвет</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>Непрозрачность выбранного цвета</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>Кнопки: щелчок открывает диалог, цвет можно перетащить на другой</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(принято)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(предпросмотр)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>Полосы и точки</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Мигание</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Камеры</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>Сцена слева</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>Сцена справа</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Клипы</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Заставка</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Интервью</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Рекордер</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Нет выхода</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>Все выходы</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>Не определено</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>Сегодня вечером в прямом эфире из студии</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>С группами</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>Его список</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>Ничего не отмечено</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>Некоторые отмечены</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>Отмечены все</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>Без элементов</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>Их список</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>Шрифт с образцом</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>Списки с группами и флажками</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Вопрос</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Критическая ошибка</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Окна сообщений</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>Выдать следующий кью в эфир?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>Дальше использовать свои надписи на кнопках</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>Выдать в эфир</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>Всплывающие сообщения</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Стрелка</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Вверху слева</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Вверху справа</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Внизу слева</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Внизу справа</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>На диске записи осталось места на пять минут.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>Выбор файлов</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Медиафайл</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>Недавние видео</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Сообщено</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>Леттербокс</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>Задержка изменения размера</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>Диалоги и средства выбора</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>Перетащенные файлы появятся ниже</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(не локальный файл)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Перетащите файлы сюда</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>Значки с делегатом элементов</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>Перетащите один клип на другой.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>конец списка</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 — место сброса: %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>О перемещении сообщается, перемещает приложение</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>Строки тянутся такими, как выглядят</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>Перетащите выделенные строки.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>Списки с перетаскиванием</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Получено</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>Сообщений: %1</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Обучение</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>Открыть виртуальный порт</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>Ни один порт не открыт.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>Служба MIDI не запущена или у неё нет портов.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>Порт %1 открыт.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>Порта %1 больше нет.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>Запрошен виртуальный порт %1.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>Отправить на выход</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>Нота (удерживать)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>Контроллер 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>Назначить сообщение для уровня</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>Имитировать поток в 10 000 сообщений в секунду</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Кольца</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Полосы</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>Колёса ожидания</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>Вращать серое</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Подрезка клипа</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Кадр %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>Вход %1   Выход %2   Длительность %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>Ручки диапазона</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>Симметричное движение</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Отслеживание</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Промежутки</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>Ручки проходят друг через друга</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>Ручки встречаются</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>Ручки держат дистанцию</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>С делениями</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Диапазоны</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: сработало</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>Щёлкните поле и нажмите клавиши</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>Следующий кью</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>Затемнение</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>Эти сочетания клавиш относятся к данной странице. Они работают, пока ни одно поле не в фокусе.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>Щелчок — прыжок, перетаскивание, наведение</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>Без прыжка</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>Установить уровень 30 без сигнала</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Фейдер</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>Фейдеры</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Ползунки</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>Поле поиска, пустое</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>интервью</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>Поле поиска, с текстом</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>Начальные титры, вторая версия</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>Надпись, которая помещается</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>Обрезана справа</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>Обрезана посередине</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>Обрезана слева</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>Редактируется</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>Щёлкните имя, чтобы изменить его.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Переименовано в «%1»</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Текстовые поля</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(новая правка)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>Тяните по числу; щёлкните, чтобы ввести</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Ctrl удваивает скорость перетаскивания, Shift — уменьшает вдвое.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>Показать смешанный выбор как --</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>Открыть порт</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>Собственные элементы библиотеки</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>Стандартные элементы</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Имитация контроллера</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>Цветовая метка %1</translation>
    </message>
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
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>Максимум</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Минимум</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>Нижняя граница</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Верхняя граница</translation>
    </message>
</context>
</TS>
