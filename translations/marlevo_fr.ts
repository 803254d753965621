<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CanvasAccessibility</name>
    <message>
        <source>%1 × %2 px, %3, %4</source>
        <translation>%1 × %2&#xa0;px, %3, %4</translation>
    </message>
</context>
<context>
    <name>CanvasTexts</name>
    <message>
        <source>single_stroke</source>
        <translation>%1 trait</translation>
    </message>
    <message>
        <source>multiple_strokes</source>
        <translation>%1 traits</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Drawing-</source>
        <translation>Dessin-</translation>
    </message>
    <message>
        <source>Export Drawing</source>
        <translation>Exporter le dessin</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>Image PNG</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>Image JPEG</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>Image TIFF</translation>
    </message>
    <message>
        <source>BMP image</source>
        <translation>Image BMP</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>Document PDF</translation>
    </message>
    <message>
        <source>Marlevo drawing</source>
        <translation>Dessin Marlevo</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Ouvrir un dessin</translation>
    </message>
    <message>
        <source>Save Drawing</source>
        <translation>Enregistrer le dessin</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Square 1:1 (1080×1080)</source>
        <translation>Carré 1:1 (1080×1080)</translation>
    </message>
    <message>
        <source>HD 16:9 (1280×720)</source>
        <translation>HD 16:9 (1280×720)</translation>
    </message>
    <message>
        <source>Full HD 16:9 (1920×1080)</source>
        <translation>Full HD 16:9 (1920×1080)</translation>
    </message>
    <message>
        <source>4K 16:9 (3840×2160)</source>
        <translation>4K 16:9 (3840×2160)</translation>
    </message>
    <message>
        <source>A4 Portrait (2480×3508)</source>
        <translation>A4 portrait (2480×3508)</translation>
    </message>
    <message>
        <source>A4 Landscape (3508×2480)</source>
        <translation>A4 paysage (3508×2480)</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Reliure sur le bord long</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Reliure sur le bord court</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Indiquez des pages ou des plages séparées par des virgules. Une plage s’écrit avec deux nombres séparés par un tiret. Par exemple, 3,5-7,9 imprime les pages 3, 5, 6, 7 et 9.</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>Draw</source>
        <translation>Dessi&#xad;ner</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélec&#xad;tion</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rem&#xad;plir</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rec&#xad;tangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>El&#xad;lipse</translation>
    </message>
</context>
<context>
    <name>marlevo::ActionRow</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Opens a menu</source>
        <translation>Ouvre un menu</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasScrollArea</name>
    <message>
        <source>Drawing area</source>
        <translation>Zone de dessin</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Canevas</translation>
    </message>
</context>
<context>
    <name>marlevo::ColorRow</name>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Color black</source>
        <translation>Couleur noire</translation>
    </message>
    <message>
        <source>Color white</source>
        <translation>Couleur blanche</translation>
    </message>
    <message>
        <source>Color red</source>
        <translation>Couleur rouge</translation>
    </message>
    <message>
        <source>Color orange</source>
        <translation>Couleur orange</translation>
    </message>
    <message>
        <source>Color yellow</source>
        <translation>Couleur jaune</translation>
    </message>
    <message>
        <source>Color green</source>
        <translation>Couleur verte</translation>
    </message>
    <message>
        <source>Color blue</source>
        <translation>Couleur bleue</translation>
    </message>
    <message>
        <source>Color purple</source>
        <translation>Couleur violette</translation>
    </message>
</context>
<context>
    <name>marlevo::ContentView</name>
    <message>
        <source>Marlevo</source>
        <translation>Marlevo</translation>
    </message>
</context>
<context>
    <name>marlevo::DrawingSection</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>%1px</source>
        <translation>%1&#xa0;px</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
</context>
<context>
    <name>marlevo::ExportPopover</name>
    <message>
        <source>Export as</source>
        <translation>Exporter en</translation>
    </message>
</context>
<context>
    <name>marlevo::EyeButton</name>
    <message>
        <source>Hide layer</source>
        <translation>Masquer le calque</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Afficher le calque</translation>
    </message>
    <message>
        <source>Hide layer: %1</source>
        <translation>Masquer le calque&#xa0;: %1</translation>
    </message>
    <message>
        <source>Show layer: %1</source>
        <translation>Afficher le calque&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>marlevo::FormsSection</name>
    <message>
        <source>Forms</source>
        <translation>Formes</translation>
    </message>
</context>
<context>
    <name>marlevo::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About Marlevo</source>
        <translation>À propos de Marlevo</translation>
    </message>
    <message>
        <source>Marlevo</source>
        <translation>Marlevo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Draw with the mouse: strokes, shapes and layers.</source>
        <translation>Dessinez à la souris&#xa0;: traits, formes et calques.</translation>
    </message>
</context>
<context>
    <name>marlevo::LayerRows</name>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
</context>
<context>
    <name>marlevo::LayersSection</name>
    <message>
        <source>Add layer</source>
        <translation>Ajouter un calque</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>Supprimer le calque</translation>
    </message>
    <message>
        <source>Move layer up</source>
        <translation>Monter le calque</translation>
    </message>
    <message>
        <source>Move layer down</source>
        <translation>Descendre le calque</translation>
    </message>
</context>
<context>
    <name>marlevo::MenuCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Copy Canvas</source>
        <translation>Copier le canevas</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Canevas</translation>
    </message>
    <message>
        <source>Clear Active Layer</source>
        <translation>Vider le calque actif</translation>
    </message>
    <message>
        <source>Clear All Layers</source>
        <translation>Vider tous les calques</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Afficher/masquer la grille</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>Add Layer</source>
        <translation>Ajouter un calque</translation>
    </message>
    <message>
        <source>Delete Active Layer</source>
        <translation>Supprimer le calque actif</translation>
    </message>
    <message>
        <source>Move Layer Up</source>
        <translation>Monter le calque</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Descendre le calque</translation>
    </message>
    <message>
        <source>New Canvas…</source>
        <translation>Nouveau canevas…</translation>
    </message>
</context>
<context>
    <name>marlevo::NewCanvasSheet</name>
    <message>
        <source>Custom size</source>
        <translation>Taille personnalisée</translation>
    </message>
    <message>
        <source>Create Canvas</source>
        <translation>Créer le canevas</translation>
    </message>
    <message>
        <source>New Canvas</source>
        <translation>Nouveau canevas</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2&#xa0;px</translation>
    </message>
</context>
<context>
    <name>marlevo::OpenPanel</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
</context>
<context>
    <name>marlevo::PreferencesView</name>
    <message>
        <source>Default width</source>
        <translation>Largeur par défaut</translation>
    </message>
    <message>
        <source>Default height</source>
        <translation>Hauteur par défaut</translation>
    </message>
    <message>
        <source>Auto-save every 30 seconds</source>
        <translation>Enregistrer automatiquement toutes les 30&#xa0;secondes</translation>
    </message>
    <message>
        <source>Default Canvas Size</source>
        <translation>Taille par défaut du canevas</translation>
    </message>
    <message>
        <source>Auto-Save</source>
        <translation>Enregistrement automatique</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
</context>
<context>
    <name>marlevo::SavePanel</name>
    <message>
        <source>Save in:</source>
        <translation>Enregistrer dans&#xa0;:</translation>
    </message>
    <message>
        <source>A folder named “%1” exists.</source>
        <translation>Un dossier nommé «&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» est trop long.</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous le remplacer&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>marlevo::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>marlevo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Tools and View</source>
        <translation>Outils et affichage</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Delete Selected Stroke</source>
        <translation>Supprimer le trait sélectionné</translation>
    </message>
</context>
<context>
    <name>marlevo::SidebarView</name>
    <message>
        <source>Sidebar</source>
        <translation>Barre latérale</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
</context>
<context>
    <name>marlevo::StatusBar</name>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>marlevo::TextFieldCommands</name>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>marlevo::ViewSection</name>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Cou&#xad;leur d’arrière-plan</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Arrière-plan transpa&#xad;rent</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowAccessor::Coordinator</name>
    <message>
        <source>Do you want to save your drawing?</source>
        <translation>Voulez-vous enregistrer votre dessin&#x202f;?</translation>
    </message>
    <message>
        <source>Your drawing will be lost if you don&apos;t save.</source>
        <translation>Votre dessin sera perdu si vous ne l’enregistrez pas.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>&amp;Ne pas enregistrer</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
</context>
</TS>
