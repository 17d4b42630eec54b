<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>Médias (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>Médias (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>Galerie de libnocturne</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>Lisible</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>Atténué</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>Arrière-plan %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressources</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Filtrer par nom</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 image(s) sur %2</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>Textes de la bibliothèque</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;Deux chiffres n’ont pas de pastille</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;Aller à la caméra un</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;Aller à la caméra deux</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;Aller à la caméra trois</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>0, 1, 50 et 100 sur 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>Une image plus grande que sa fenêtre</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>Un seul onglet sans texte</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>Toutes les sources sont à nouveau connectées.</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>Au maximum</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>Au minimum, plus et moins</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>Relief automatique</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>Pointeur sur Reculer</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>Reculer enfoncé</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>À côté du contenu</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>Chutier %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Boîte</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>Tampon</translation>
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
        <translation>Occupé</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Boutons et étiquettes</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Caméra 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Caméra 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>Cases à cocher</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Cases à cocher et boutons radio</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Choisi</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>Cliquez sur cette étiquette</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>Étiquette cliquable</translation>
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
        <translation>Nom du clip</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>Lecteur de clips</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Listes déroulantes</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>Lien de commande</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Conteneurs</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Coupe franche</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>Boutons à délai</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>Molettes</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Fondu enchaîné</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>Bas enfoncé</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Modifiable</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>Modifiable, avec icônes</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Plat</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>Avec le focus</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Polices</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>Une demi-seconde</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>Pointeur sur la poignée</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>Poignée enfoncée</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>Ligne horizontale</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>Barres de progression horizontales</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>Curseurs horizontaux</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>Survolé</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Icône seule</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>En service</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Inversé</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>Niveau, heure, date</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>Menu immédiat</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>Menu sur la flèche</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mélange</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>Sélection mixte</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>Sans boutons</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>Sans numéro</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>Sans graduations</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>Non basculable : sans délai</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Non choisi</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>Non modifiable</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>Non modifiable, modifiable</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>Non modifiable, avec icônes</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>À l’antenne</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>Activé, survolé</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>Activé, enfoncé</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvert</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Listes ouvertes</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>Ouvrir le dernier spectacle</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>Autres avec le même cadre</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Au-dessus de %1</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>Par-dessus le contenu</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>Partiellement coché</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>Plus et moins</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Position X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Position Y</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Enfoncé</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>Barres de progression</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>Style proxy</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Boutons-poussoirs</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>Boutons radio, choisis par numéro</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>En relief</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>Rendu</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>Barres de défilement</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>Curseurs et molettes</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>Compteurs</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>En creux</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Interrupteurs</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Passage à l’antenne</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>Texte à côté de l’icône</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>Les onglets avec texte ont la même largeur ; un onglet sans texte remplit la barre.</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>Texte sous l’icône</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>Graduations au-dessus</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>Graduations au-dessous</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>Graduations des deux côtés</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>Titre seul</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titres</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>Bouton d’outil</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Boutons d’outil</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>Deux secondes</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Non coché</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>Pointeur sur Haut</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>Haut enfoncé</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>Barres de progression verticales</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>Curseurs verticaux</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>Vertical, des deux côtés</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>Vertical, inversé</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>Vertical, sans graduations</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>Vertical, graduations à gauche</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>Vertical, graduations à droite</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Volet</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Avec icône</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>Avec menu</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>Avec crans</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>Sans cadre</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Sans texte</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>En boucle</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Spectacle</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>Il manque une source.</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>Un titre trop long</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>Une infobulle</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Au-dessus</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>Au-dessus, deuxième</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>Au-dessus, deuxième ligne</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Au-dessous</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Caméra %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>Caméras, lecteurs et titres</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>Coché, désactivé</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>Coché, avec une icône</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>Fermables, déplaçables, avec icônes</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>Copier les sources du dernier</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>Dialogues et infobulles</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>Mode document, un onglet désactivé</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>Spectacle du soir</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Première</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>Zones de groupe et cadres</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>Fenêtre inactive</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>À l’intérieur</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Incrustations</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>Champs de saisie</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>Listes, tableaux et arbres</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Fenêtre principale</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>Pointeur sur Agrandir</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>Agrandir enfoncé</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Agrandie</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Réduite</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>Fenêtre réduite</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mélangeur</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>Plus d’onglets que de place</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>Nom du spectacle</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>Nouveau spectacle</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non coché</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>Non coché, avec une icône</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>Rien de plus</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>L’un des deux</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panneau</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévisualisation</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>Lancer le générique.
Fondu au noir.</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>Rectangles de sélection</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Enregistrer avant de fermer ?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Deuxième</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>Plusieurs lignes</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>Fenêtre enroulée</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Spectacle %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Source %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>Panneau stylé</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>L’élément par défaut</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>L’autre</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>Le conducteur a été modifié depuis le dernier enregistrement.</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>Titre aligné à droite</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>Triangulaire, au-dessus</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>Triangulaire, au-dessous</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>Triangulaire, à gauche</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>Triangulaire, à droite</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>Titre vertical</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>Comment s’appelle-t-il ?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>Fenêtre avec aide</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>Fenêtres dans une fenêtre</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>Avec un bouton d’effacement</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>Avec une indication</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>Avec une sélection</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>Avec une icône</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>Dégradé : appuyez pour ajouter, glissez pour déplacer, glissez au loin pour retirer, double-cliquez pour une couleur</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>Opacité de la couleur choisie</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>Boutons : cliquez pour un dialogue, glissez une couleur sur une autre</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(accepté)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(aperçu)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>Barres et points</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Clignoter</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>Scène, côté cour</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>Scène, côté jardin</translation>
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
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Aucune sortie</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>Toutes les sorties</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>Indéterminé</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>Ce soir en direct du studio</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>Groupée</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>Sa liste</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>Aucun élément coché</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>Quelques éléments cochés</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>Tous les éléments cochés</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>Sans éléments</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>Leur liste</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>Police avec aperçu</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>Listes déroulantes à groupes et à cases</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Boîtes de message</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>Passer le prochain top à l’antenne ?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>Utiliser désormais ses propres textes de bouton</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>Passer à l’antenne</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>Bulles</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>Le disque d’enregistrement a encore de la place pour cinq minutes.</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>Sélecteurs de fichier</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Fichier média</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>Vidéos récentes</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Signalé</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>Bandes noires</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>Délai de redimensionnement</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>Dialogues et sélecteurs</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>Les fichiers déposés apparaissent ci-dessous</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(pas un fichier local)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Déposez des fichiers ici</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>Icônes avec le délégué d’éléments</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>Glissez un clip sur un autre.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>fin de la liste</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 déposé sur : %2.</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>Le déplacement est signalé, l’application déplace</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>Lignes glissées telles qu’affichées</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>Glissez les lignes sélectionnées.</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>Listes à glisser-déposer</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 message(s)</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>Apprendre</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>Ouvrir un port virtuel</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>Aucun port n’est ouvert.</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>Aucun service MIDI n’est lancé, ou il n’a pas de port.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 est ouvert.</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 a disparu.</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>Port virtuel %1 demandé.</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>Envoyer vers la sortie</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>Note (maintenir)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>Contrôleur 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>Apprendre un message pour le niveau</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>Simuler un flux de 10 000 messages par seconde</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Anneaux</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barres</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>Roues d’attente</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>Faire tourner la grise</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Rogner un clip</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Image %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>Entrée %1   Sortie %2   Durée %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>Poignées de plage</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>Déplacement symétrique</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Suivi continu</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>Plages</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>Les poignées se croisent</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>Les poignées se rejoignent</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>Les poignées restent à distance</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>Avec graduations</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Plages</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1 : déclenché</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>Cliquez sur un champ, puis appuyez sur les touches</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>Top suivant</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>Ces raccourcis sont ceux de cette page. Ils agissent tant qu’aucun champ n’a le focus.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>Cliquer pour sauter, glisser, survoler</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>Sans saut</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>Mettre le niveau à 30 sans signal</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>Faders</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Curseurs</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>Champ de recherche, vide</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>interview</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>Champ de recherche, avec texte</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>Générique de début, deuxième version</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>Étiquette qui tient</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>Tronquée à droite</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>Tronquée au milieu</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>Tronquée à gauche</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>En cours d’édition</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>Cliquez sur un nom pour le modifier.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Renommé en « %1 »</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Champs de texte</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(nouvelle modification)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>Glissez sur un nombre ; cliquez pour le saisir</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Ctrl double la vitesse du glissement, Maj la divise par deux.</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>Afficher la sélection mixte par --</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>Ouvrir le port</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>Ceux de la bibliothèque</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>Contrôles standard</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Contrôleur simulé</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>Point de couleur %1</translation>
    </message>
    <message>
        <source>Select color</source>
        <translation>Choisir une couleur</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
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
        <translation>Inférieur</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Supérieur</translation>
    </message>
</context>
</TS>
