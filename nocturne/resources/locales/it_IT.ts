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
        <source>Exact</source>
        <translation>Esatto</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>Leggibile</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>Attenuato</translation>
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
        <translation>Non scelto</translation>
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
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>Rampa: premere per aggiungere, trascinare per spostare, trascinare via per rimuovere, doppio clic per un colore</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>Opacità del colore scelto</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>Pulsanti: fare clic per una finestra di dialogo, trascinare un colore su un altro</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(accettato)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(anteprima)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>Barre e punti</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Lampeggia</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Telecamere</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>Palco, sinistra</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>Palco, destra</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Sigla</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Intervista</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Registratore</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Nessuna uscita</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>Tutte le uscite</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>Indeterminato</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>Stasera in diretta dallo studio</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>Raggruppata</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>Il suo elenco</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>Nessuno selezionato</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>Alcuni selezionati</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>Tutti selezionati</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>Senza voci</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>Il loro elenco</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>Carattere con anteprima</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>Caselle combinate con gruppi e caselle</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Domanda</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critico</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Finestre di messaggio</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>Mandare in onda il prossimo cue?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>Usa d’ora in poi testi propri per i pulsanti</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>Manda in onda</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>Fumetti</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Freccia</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>Sul disco di registrazione c’è spazio per altri cinque minuti.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>Selettori di file</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>File multimediale</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>Video recenti</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Segnalato</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>Bande nere</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>Ritardo di ridimensionamento</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margine</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>Finestre di dialogo e selettori</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>I file rilasciati compaiono sotto</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(non è un file locale)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Rilasciare i file qui</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>Icone con il delegato degli elementi</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>Trascinare un clip su un altro.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>fine dell’elenco</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 rilasciato su: %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>Lo spostamento è segnalato, sposta l’applicazione</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>Righe trascinate così come appaiono</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>Trascinare le righe selezionate.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>Elenchi da trascinare</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Ricevuto</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 messaggi</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Apprendi</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Ingresso</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>Apri una porta virtuale</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>Nessuna porta è aperta.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>Nessun servizio MIDI è in esecuzione, oppure non ha porte.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 è aperta.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 non c’è più.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>Richiesta la porta virtuale %1.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>Invia all’uscita</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>Nota (tenere premuto)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>Controller 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>Apprendi un messaggio per il livello</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>Simula un flusso di 10.000 messaggi al secondo</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Anelli</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barre</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>Rotelle di attesa</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>Fai girare quella grigia</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Rifila un clip</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Fotogramma %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>Attacco %1   Stacco %2   Durata %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>Maniglie dell’intervallo</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>Movimento simmetrico</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Aggiornamento continuo</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Tratti</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>Le maniglie si incrociano</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>Le maniglie si incontrano</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>Le maniglie restano distanti</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>Con tacche</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Intervalli</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: attivato</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>Fare clic su un campo, poi premere i tasti</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arresta</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>Prossimo cue</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>Buio</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>Le scorciatoie sono quelle di questa pagina. Funzionano finché nessun campo ha il focus.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Scorciatoie</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>Clic per saltare, trascinare, passare sopra</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>Senza salto</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>Imposta il livello a 30 senza segnale</translation>
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
        <translation>Cursori</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>Campo di ricerca, vuoto</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>intervista</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>Campo di ricerca, con testo</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>Titoli di testa, seconda versione</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>Etichetta che ci sta</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>Troncata a destra</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>Troncata al centro</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>Troncata a sinistra</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>In modifica</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>Fare clic su un nome per modificarlo.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Rinominato in «%1»</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Campi di testo</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(nuova modifica)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>Trascinare su un numero; fare clic per digitarlo</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Ctrl raddoppia la velocità del trascinamento, Maiusc la dimezza.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>Mostra la selezione mista come --</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>Apri la porta</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>Quelli della libreria</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>Controlli standard</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Controller simulato</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>Punto di colore %1</translation>
    </message>
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
