<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>%1 Strich</translation>
    </message>
    <message>
        <source>multiple_strokes</source>
        <translation>%1 Striche</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Drawing-</source>
        <translation>Zeichnung-</translation>
    </message>
    <message>
        <source>Export Drawing</source>
        <translation>Zeichnung exportieren</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG-Bild</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF-Bild</translation>
    </message>
    <message>
        <source>BMP image</source>
        <translation>BMP-Bild</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF-Dokument</translation>
    </message>
    <message>
        <source>Marlevo drawing</source>
        <translation>Marlevo-Zeichnung</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Save Drawing</source>
        <translation>Zeichnung speichern</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Square 1:1 (1080×1080)</source>
        <translation>Quadrat 1:1 (1080×1080)</translation>
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
        <translation>A4 Hochformat (2480×3508)</translation>
    </message>
    <message>
        <source>A4 Landscape (3508×2480)</source>
        <translation>A4 Querformat (3508×2480)</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Verzeichnis</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Lange Seite</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Kurze Seite</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Geben Sie Seiten oder Bereiche durch Kommata getrennt ein. Ein Bereich besteht aus zwei Zahlen mit einem Bindestrich dazwischen. Beispiel: 3,5-7,9 druckt die Seiten 3, 5, 6, 7 und 9.</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>Draw</source>
        <translation>Zeich&#xad;nen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Aus&#xad;wählen</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radie&#xad;rer</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Pi&#xad;pette</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Recht&#xad;eck</translation>
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
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Opens a menu</source>
        <translation>Öffnet ein Menü</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasScrollArea</name>
    <message>
        <source>Drawing area</source>
        <translation>Zeichenfläche</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
</context>
<context>
    <name>marlevo::ColorRow</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color black</source>
        <translation>Farbe Schwarz</translation>
    </message>
    <message>
        <source>Color white</source>
        <translation>Farbe Weiß</translation>
    </message>
    <message>
        <source>Color red</source>
        <translation>Farbe Rot</translation>
    </message>
    <message>
        <source>Color orange</source>
        <translation>Farbe Orange</translation>
    </message>
    <message>
        <source>Color yellow</source>
        <translation>Farbe Gelb</translation>
    </message>
    <message>
        <source>Color green</source>
        <translation>Farbe Grün</translation>
    </message>
    <message>
        <source>Color blue</source>
        <translation>Farbe Blau</translation>
    </message>
    <message>
        <source>Color purple</source>
        <translation>Farbe Violett</translation>
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
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1px</source>
        <translation>%1&#xa0;px</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnen</translation>
    </message>
</context>
<context>
    <name>marlevo::ExportPopover</name>
    <message>
        <source>Export as</source>
        <translation>Exportieren als</translation>
    </message>
</context>
<context>
    <name>marlevo::EyeButton</name>
    <message>
        <source>Hide layer</source>
        <translation>Ebene ausblenden</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Ebene einblenden</translation>
    </message>
    <message>
        <source>Hide layer: %1</source>
        <translation>Ebene ausblenden: %1</translation>
    </message>
    <message>
        <source>Show layer: %1</source>
        <translation>Ebene einblenden: %1</translation>
    </message>
</context>
<context>
    <name>marlevo::FormsSection</name>
    <message>
        <source>Forms</source>
        <translation>Formen</translation>
    </message>
</context>
<context>
    <name>marlevo::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Marlevo</source>
        <translation>Über Marlevo</translation>
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
        <translation>Zeichnen mit der Maus: Striche, Formen und Ebenen.</translation>
    </message>
</context>
<context>
    <name>marlevo::LayerRows</name>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
</context>
<context>
    <name>marlevo::LayersSection</name>
    <message>
        <source>Add layer</source>
        <translation>Ebene hinzufügen</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>Ebene löschen</translation>
    </message>
    <message>
        <source>Move layer up</source>
        <translation>Ebene nach oben verschieben</translation>
    </message>
    <message>
        <source>Move layer down</source>
        <translation>Ebene nach unten verschieben</translation>
    </message>
</context>
<context>
    <name>marlevo::MenuCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter&#xa0;…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken&#xa0;…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Copy Canvas</source>
        <translation>Leinwand kopieren</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Leinwand</translation>
    </message>
    <message>
        <source>Clear Active Layer</source>
        <translation>Aktive Ebene leeren</translation>
    </message>
    <message>
        <source>Clear All Layers</source>
        <translation>Alle Ebenen leeren</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Raster ein-/ausblenden</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Add Layer</source>
        <translation>Ebene hinzufügen</translation>
    </message>
    <message>
        <source>Delete Active Layer</source>
        <translation>Aktive Ebene löschen</translation>
    </message>
    <message>
        <source>Move Layer Up</source>
        <translation>Ebene nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Ebene nach unten verschieben</translation>
    </message>
    <message>
        <source>New Canvas…</source>
        <translation>Neue Leinwand&#xa0;…</translation>
    </message>
</context>
<context>
    <name>marlevo::NewCanvasSheet</name>
    <message>
        <source>Custom size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>Create Canvas</source>
        <translation>Leinwand erstellen</translation>
    </message>
    <message>
        <source>New Canvas</source>
        <translation>Neue Leinwand</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
</context>
<context>
    <name>marlevo::PreferencesView</name>
    <message>
        <source>Default width</source>
        <translation>Standardbreite</translation>
    </message>
    <message>
        <source>Default height</source>
        <translation>Standardhöhe</translation>
    </message>
    <message>
        <source>Auto-save every 30 seconds</source>
        <translation>Alle 30 Sekunden automatisch speichern</translation>
    </message>
    <message>
        <source>Default Canvas Size</source>
        <translation>Standardgröße der Leinwand</translation>
    </message>
    <message>
        <source>Auto-Save</source>
        <translation>Automatisches Speichern</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
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
        <translation>Speichern in:</translation>
    </message>
    <message>
        <source>A folder named “%1” exists.</source>
        <translation>Es gibt bereits einen Ordner namens „%1“.</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>Der Name „%1“ ist zu lang.</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>„%1“ existiert bereits. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>marlevo::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>marlevo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Tools and View</source>
        <translation>Werkzeuge und Ansicht</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Delete Selected Stroke</source>
        <translation>Ausgewählten Strich löschen</translation>
    </message>
</context>
<context>
    <name>marlevo::SidebarView</name>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
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
        <translation>Einpassen</translation>
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
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>marlevo::ViewSection</name>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hinter&#xad;grund&#xad;farbe</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Transpa&#xad;renter Hinter&#xad;grund</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowAccessor::Coordinator</name>
    <message>
        <source>Do you want to save your drawing?</source>
        <translation>Möchten Sie Ihre Zeichnung speichern?</translation>
    </message>
    <message>
        <source>Your drawing will be lost if you don&apos;t save.</source>
        <translation>Ihre Zeichnung geht verloren, wenn Sie sie nicht speichern.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
</context>
</TS>
