<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>File multimediali (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>File multimediali (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galleria di libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da destra a sinistra</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Ruolo</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitato</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Sfondo %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Risorse</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Filtra per nome</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 di %2 immagini</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Testi della libreria</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;Due cifre non hanno un contrassegno</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;Vai alla telecamera uno</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;Vai alla telecamera due</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;Vai alla telecamera tre</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>0, 1, 50 e 100 di 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>Un’immagine più grande della sua finestra</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>Una sola scheda senza testo</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>Tutte le sorgenti sono di nuovo collegate.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Frecce</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>Al massimo</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>Al minimo, più e meno</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>Rilievo automatico</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>Puntatore su Indietro</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>Indietro premuto</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>Accanto al contenuto</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>Cartella %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Riquadro</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>Buffer</translation>
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
        <translation>Occupato</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Pulsanti</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Pulsanti ed etichette</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Telecamera 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Telecamera 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>Caselle di controllo</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Caselle e pulsanti di opzione</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Selezionato</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Scelto</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>Fare clic su questa etichetta</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>Etichetta cliccabile</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Client</translation>
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
        <translation>Nome del clip</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>Lettore di clip</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Caselle combinate</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>Collegamento a comando</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Contenitori</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Stacco</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>Pulsanti con ritardo</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>Manopole</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>Giù premuto</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Modificabile</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>Modificabile, con icone</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effetti</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Piatto</translation>
    </message>
    <message>
        <source>Flat default</source>
        <translation>Piatto, predefinito</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>Con il focus</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Caratteri</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>Mezzo secondo</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>Puntatore sulla maniglia</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>Maniglia premuta</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>Linea orizzontale</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>Barre di avanzamento orizzontali</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>Cursori orizzontali</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>Sotto il puntatore</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Solo icona</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>In uso</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Invertito</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>Livello, ora, data</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>Menu immediato</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>Menu sulla freccia</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mix</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>Selezione mista</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>Senza pulsanti</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>Senza numero</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>Senza tacche</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>Non commutabile: nessun ritardo</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Non scelto</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>Non modificabile</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>Non modificabile, modificabile</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>Non modificabile, con icone</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>In onda</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>Acceso, sotto il puntatore</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>Acceso, premuto</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aperto</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Elenchi aperti</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>Apri l’ultimo spettacolo</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>Altri con la stessa cornice</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Sopra %1</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>Sopra il contenuto</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>Parzialmente selezionato</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Semplice</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>Più e meno</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Posizione X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Posizione Y</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Premuto</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>Barre di avanzamento</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>Stile proxy</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Pulsanti a pressione</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>Pulsanti di opzione, impostati per id</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>In rilievo</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registra</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>Rendering</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>Barre di scorrimento</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>Cursori e manopole</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>Caselle di selezione</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Flusso</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>Incassato</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Interruttori</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Manda in onda</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>Testo accanto all’icona</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>Le schede con testo hanno la stessa larghezza; una senza testo riempie la barra.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>Testo sotto l’icona</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>Tacche sopra</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>Tacche sotto</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>Tacche su entrambi i lati</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>Solo titolo</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titoli</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>Pulsante strumento</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Pulsanti strumento</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>Due secondi</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Non selezionato</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>Puntatore su Su</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>Su premuto</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>Barre di avanzamento verticali</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>Cursori verticali</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>Verticale, entrambi i lati</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>Verticale, invertito</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>Verticale, senza tacche</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>Verticale, tacche a sinistra</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>Verticale, tacche a destra</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Tendina</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Con icona</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>Con menu</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>Con tacche</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>Senza cornice</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Senza testo</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>Ciclico</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Spettacolo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>Manca una sorgente.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>Un titolo troppo lungo</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>Un suggerimento</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Sopra</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>Sopra, seconda</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>Sopra, seconda riga</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Sotto</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Telecamera %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>Telecamere, lettori e titoli</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>Selezionato, disabilitato</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>Selezionato, con icona</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>Chiudibili, spostabili, con icone</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>Copia le sorgenti dell’ultimo</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>Finestre di dialogo e suggerimenti</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>Modalità documento, una scheda disabilitata</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>Spettacolo serale</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>Gruppi e cornici</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Mantieni</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>Finestra inattiva</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chiave</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Chiavi</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>Campi di testo</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>Elenchi, tabelle e alberi</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Finestra principale</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>Puntatore su Ingrandisci</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>Ingrandisci premuto</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Ingrandita</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Ridotta a icona</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>Finestra ridotta a icona</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mixer</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>Più schede dello spazio disponibile</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>Nome dello spettacolo</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>Nuovo spettacolo</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non selezionato</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>Non selezionato, con icona</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>Nient’altro</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>Uno di due</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Apri…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Uscite</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Pannello</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>Avvia i titoli.
Dissolvenza al nero.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>Rettangoli di selezione</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Salvare prima di chiudere?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Seconda</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sezione</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>Più righe</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>Finestra arrotolata</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Spettacolo %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Sorgente %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sorgenti</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>Pannello con stile</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Schede</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>La voce predefinita</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>L’altro</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>La scaletta è cambiata dall’ultimo salvataggio.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>Titolo allineato a destra</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>Triangolare, sopra</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>Triangolare, sotto</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>Triangolare, a sinistra</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>Triangolare, a destra</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>Titolo verticale</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>Come si chiama?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>Finestra con guida</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>Finestre in una finestra</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>Con pulsante di cancellazione</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>Con un suggerimento</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>Con una selezione</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>Con un’icona</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>Seleziona colore</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
</context>
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>Inferiore</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Superiore</translation>
    </message>
</context>
</TS>
