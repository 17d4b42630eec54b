<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Medien (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Medien (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galerie von libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exakt</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>Lesbar</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>Gedimmt</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Hintergrund %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Nach Namen filtern</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Texte der Bibliothek</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;Zwei Ziffern bekommen kein Kennzeichen</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;Zu Kamera eins wechseln</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;Zu Kamera zwei wechseln</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;Zu Kamera drei wechseln</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>0, 1, 50 und 100 von 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>Ein Bild, das größer ist als sein Fenster</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>Ein einzelner Reiter ohne Text</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>Alle Quellen sind wieder verbunden.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>Am Maximum</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>Am Minimum, Plus und Minus</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>Erhöht sich beim Zeigen</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>Zeiger auf Zurück</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>Zurück gedrückt</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>Neben dem Inhalt</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>Ordner %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Kasten</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>Bus %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>Bus A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Schaltflächen und Beschriftungen</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Kamera 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Kamera 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>Kontrollkästchen</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Kontrollkästchen und Optionsfelder</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Angekreuzt</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>Auf diese Beschriftung klicken</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>Anklickbare Beschriftung</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>Name des Clips</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>Clip-Spieler</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Kombinationsfelder</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>Befehlslink</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Behälter</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>Schaltflächen mit Sperrzeit</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>Drehregler</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>Ab gedrückt</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Bearbeitbar</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>Bearbeitbar, mit Symbolen</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>Mit Fokus</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>Eine halbe Sekunde</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>Zeiger auf dem Griff</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>Griff gedrückt</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagrecht</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>Waagrechte Linie</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>Waagrechte Fortschrittsbalken</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>Waagrechte Schieberegler</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>Zeiger darüber</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Nur Symbol</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>In Gebrauch</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>Pegel, Zeit, Datum</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>Menü sofort</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>Menü am Pfeil</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mischen</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>Gemischte Auswahl</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>Ohne Tasten</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>Ohne Zahl</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>Ohne Teilstriche</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>Nicht umschaltbar: keine Sperrzeit</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Nicht gewählt</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>Nicht bearbeitbar</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>Nicht bearbeitbar, bearbeitbar</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>Nicht bearbeitbar, mit Symbolen</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>Auf Sendung</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>Ein, Zeiger darüber</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>Ein, gedrückt</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Geöffnet</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Geöffnete Listen</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>Letzte Show öffnen</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>Andere mit demselben Rahmen</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>Über dem Inhalt</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>Teilweise angekreuzt</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>Plus und Minus</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>X-Position</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Y-Position</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Gedrückt</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>Fortschrittsbalken</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>Proxy-Stil</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Drucktasten</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>Optionsfelder, über die Nummer gesetzt</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>Erhaben</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Nur lesbar</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>Rendern</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>Bildlaufleisten</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>Schiebe- und Drehregler</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>Drehfelder</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Stream</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Vertieft</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Take</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>Text neben dem Symbol</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>Reiter mit Text sind gleich breit; ein Reiter ohne Text füllt die Leiste.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>Text unter dem Symbol</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>Teilstriche oben</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>Teilstriche unten</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>Teilstriche beidseitig</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>Nur Titel</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>Werkzeugschaltfläche</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Werkzeugschaltflächen</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>Zwei Sekunden</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Ohne Kreuz</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>Zeiger auf Auf</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>Auf gedrückt</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>Senkrechte Fortschrittsbalken</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>Senkrechte Schieberegler</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>Senkrecht, beidseitig</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>Senkrecht, umgekehrt</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>Senkrecht, ohne Teilstriche</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>Senkrecht, Teilstriche links</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>Senkrecht, Teilstriche rechts</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Wischblende</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Mit Symbol</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>Mit Menü</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>Mit Kerben</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>Ohne Rahmen</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Ohne Text</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>Umlaufend</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Show</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>Eine Quelle fehlt.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>Ein Titel, der dafür zu lang ist</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>Ein Hinweis</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>Oben, zweite</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>Oben, zweite Zeile</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>Kameras, Spieler und Titel</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>Angekreuzt, deaktiviert</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>Angekreuzt, mit Symbol</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>Schließbar, verschiebbar, mit Symbolen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>Die Quellen der letzten übernehmen</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>Dialoge und Hinweise</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>Dokumentmodus, ein Reiter deaktiviert</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>Abendshow</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erstes</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>Gruppenfelder und Rahmen</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>Inaktives Fenster</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Darin</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>Eingabefelder</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>Listen, Tabellen und Bäume</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Hauptfenster</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>Zeiger auf Maximieren</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>Maximieren gedrückt</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Maximiert</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Minimiert</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>Minimiertes Fenster</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mischer</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>Mehr Reiter als Platz</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>Name der Show</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>Neue Show</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht angekreuzt</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>Nicht angekreuzt, mit Symbol</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>Sonst nichts</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>Eines von zwei</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Tafel</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>Titel abfahren.
Nach Schwarz blenden.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>Auswahlrahmen</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Vor dem Schließen speichern?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Zweites</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>Mehrere Zeilen</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>Eingerolltes Fenster</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Show %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Quelle %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>Gestaltete Tafel</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Reiter</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>Der Standardeintrag</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>Das andere</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>Der Ablauf wurde seit dem letzten Speichern geändert.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>Titel rechtsbündig</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>Dreieckig, oben</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>Dreieckig, unten</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>Dreieckig, links</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>Dreieckig, rechts</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>Senkrechter Titel</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>Wie heißt sie?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>Fenster mit Hilfe</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>Fenster in einem Fenster</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>Mit Löschknopf</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>Mit Hinweis</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>Mit Auswahl</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>Mit Symbol</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>Verlauf: drücken zum Hinzufügen, ziehen zum Verschieben, wegziehen zum Entfernen, doppelklicken für eine Farbe</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>Deckkraft der gewählten Farbe</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>Schaltflächen: klicken für einen Dialog, eine Farbe auf eine andere ziehen</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(übernommen)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(Vorschau)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>Balken und Punkte</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Blinken</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>Bühne links</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>Bühne rechts</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Interview</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Rekorder</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Kein Ausgang</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>Alle Ausgänge</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>Unbestimmt</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>Heute Abend live aus dem Studio</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>Gruppiert</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>Ihre Liste</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>Nichts angekreuzt</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>Einige angekreuzt</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>Alle angekreuzt</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>Ohne Einträge</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>Deren Liste</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>Schrift mit Vorschau</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>Kombinationsfelder mit Gruppen und Kästchen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Meldungsfenster</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>Den nächsten Cue live nehmen?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>Ab jetzt eigene Tastentexte verwenden</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>Live nehmen</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>Sprechblasen</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>Auf dem Aufnahmelaufwerk ist Platz für noch fünf Minuten.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>Dateiwähler</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Mediendatei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>Letzte Videos</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Gemeldet</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>Letterbox</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>Verzögerung beim Ändern der Größe</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>Dialoge und Auswahlfelder</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>Abgelegte Dateien erscheinen unten</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(keine lokale Datei)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Dateien hier ablegen</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>Symbole mit dem Elementdelegaten</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>Einen Clip auf einen anderen ziehen.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>Ende der Liste</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 abgelegt auf: %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>Verschieben wird gemeldet, die Anwendung verschiebt</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>Zeilen so gezogen, wie sie aussehen</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>Die ausgewählten Zeilen ziehen.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>Listen zum Ziehen und Ablegen</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 Nachrichten</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Lernen</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>Virtuellen Port öffnen</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>Kein Port ist geöffnet.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>Es läuft kein MIDI-Dienst, oder er hat keinen Port.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 ist geöffnet.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>Virtueller Port %1 angefordert.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>An den Ausgang senden</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>Note (halten)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>Controller 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>Eine Nachricht für den Pegel lernen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>Einen Strom von 10.000 Nachrichten pro Sekunde simulieren</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>Wartekreisel</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>Den grauen drehen</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Einen Clip trimmen</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>In %1   Out %2   Länge %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>Bereichsgriffe</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>Symmetrisch bewegen</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Sofort melden</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Spannen</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>Griffe überholen sich</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>Griffe treffen sich</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>Griffe halten Abstand</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>Mit Teilstrichen</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: ausgelöst</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>Ein Feld anklicken, dann die Tasten drücken</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>Nächster Cue</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>Blackout</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>Die Tastenkürzel gehören zu dieser Seite. Sie wirken, solange kein Feld den Fokus hat.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>Klicken zum Springen, ziehen, darüber zeigen</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>Ohne Sprung</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>Pegel ohne Signal auf 30 setzen</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>Suchfeld, leer</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>interview</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>Suchfeld, mit Text</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>Vorspann, zweite Fassung</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>Beschriftung, die passt</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>Rechts gekürzt</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>In der Mitte gekürzt</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>Links gekürzt</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>Wird bearbeitet</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>Einen Namen anklicken, um ihn zu bearbeiten.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Umbenannt in „%1“</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Textfelder</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(neue Änderung)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>Über eine Zahl ziehen; anklicken zum Tippen</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Strg verdoppelt die Geschwindigkeit beim Ziehen, Umschalt halbiert sie.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>Gemischte Auswahl als -- zeigen</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>Port öffnen</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Überblick</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>Die eigenen der Bibliothek</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>Standardelemente</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Simulierter Controller</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>Farbmarke %1</translation>
    </message>
    <message>
        <source>Select color</source>
        <translation>Farbe auswählen</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>Unterer Wert</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oberer Wert</translation>
    </message>
</context>
</TS>
