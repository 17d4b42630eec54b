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
        <source>Flat default</source>
        <translation>Flach, Standard</translation>
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
        <translation>Nicht angekreuzt</translation>
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
</context>
<context>
    <name>GradientTool</name>
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
