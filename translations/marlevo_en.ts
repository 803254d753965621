<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CanvasAccessibility</name>
    <message>
        <source>%1 × %2 px, %3, %4</source>
        <translation>%1 × %2 px, %3, %4</translation>
    </message>
</context>
<context>
    <name>CanvasTexts</name>
    <message>
        <source>single_stroke</source>
        <translation>%1 stroke</translation>
    </message>
    <message>
        <source>multiple_strokes</source>
        <translation>%1 strokes</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Drawing-</source>
        <translation>Drawing-</translation>
    </message>
    <message>
        <source>Export Drawing</source>
        <translation>Export Drawing</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG image</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG image</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF image</translation>
    </message>
    <message>
        <source>BMP image</source>
        <translation>BMP image</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF document</translation>
    </message>
    <message>
        <source>Marlevo drawing</source>
        <translation>Marlevo drawing</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Open Drawing</translation>
    </message>
    <message>
        <source>Save Drawing</source>
        <translation>Save Drawing</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Square 1:1 (1080×1080)</source>
        <translation>Square 1:1 (1080×1080)</translation>
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
        <translation>A4 Portrait (2480×3508)</translation>
    </message>
    <message>
        <source>A4 Landscape (3508×2480)</source>
        <translation>A4 Landscape (3508×2480)</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Double Sided Printing</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Long side binding</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Short side binding</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>Draw</source>
        <translation>Draw</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Drop</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rect&#xad;angle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
</context>
<context>
    <name>marlevo::ActionRow</name>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Opens a menu</source>
        <translation>Opens a menu</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasScrollArea</name>
    <message>
        <source>Drawing area</source>
        <translation>Drawing area</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Canvas</translation>
    </message>
</context>
<context>
    <name>marlevo::ColorRow</name>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color black</source>
        <translation>Color black</translation>
    </message>
    <message>
        <source>Color white</source>
        <translation>Color white</translation>
    </message>
    <message>
        <source>Color red</source>
        <translation>Color red</translation>
    </message>
    <message>
        <source>Color orange</source>
        <translation>Color orange</translation>
    </message>
    <message>
        <source>Color yellow</source>
        <translation>Color yellow</translation>
    </message>
    <message>
        <source>Color green</source>
        <translation>Color green</translation>
    </message>
    <message>
        <source>Color blue</source>
        <translation>Color blue</translation>
    </message>
    <message>
        <source>Color purple</source>
        <translation>Color purple</translation>
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
        <translation>Size</translation>
    </message>
    <message>
        <source>%1px</source>
        <translation>%1px</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Drawing</translation>
    </message>
</context>
<context>
    <name>marlevo::ExportPopover</name>
    <message>
        <source>Export as</source>
        <translation>Export as</translation>
    </message>
</context>
<context>
    <name>marlevo::EyeButton</name>
    <message>
        <source>Hide layer</source>
        <translation>Hide layer</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Show layer</translation>
    </message>
    <message>
        <source>Hide layer: %1</source>
        <translation>Hide layer: %1</translation>
    </message>
    <message>
        <source>Show layer: %1</source>
        <translation>Show layer: %1</translation>
    </message>
</context>
<context>
    <name>marlevo::FormsSection</name>
    <message>
        <source>Forms</source>
        <translation>Forms</translation>
    </message>
</context>
<context>
    <name>marlevo::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Keyboard Shortcuts</translation>
    </message>
    <message>
        <source>About Marlevo</source>
        <translation>About Marlevo</translation>
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
        <translation>Draw with the mouse: strokes, shapes and layers.</translation>
    </message>
</context>
<context>
    <name>marlevo::LayerRows</name>
    <message>
        <source>Layers</source>
        <translation>Layers</translation>
    </message>
</context>
<context>
    <name>marlevo::LayersSection</name>
    <message>
        <source>Add layer</source>
        <translation>Add layer</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>Delete layer</translation>
    </message>
    <message>
        <source>Move layer up</source>
        <translation>Move layer up</translation>
    </message>
    <message>
        <source>Move layer down</source>
        <translation>Move layer down</translation>
    </message>
</context>
<context>
    <name>marlevo::MenuCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>New Window</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Save As…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Print…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Copy Canvas</source>
        <translation>Copy Canvas</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Canvas</translation>
    </message>
    <message>
        <source>Clear Active Layer</source>
        <translation>Clear Active Layer</translation>
    </message>
    <message>
        <source>Clear All Layers</source>
        <translation>Clear All Layers</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Toggle Grid</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>Add Layer</source>
        <translation>Add Layer</translation>
    </message>
    <message>
        <source>Delete Active Layer</source>
        <translation>Delete Active Layer</translation>
    </message>
    <message>
        <source>Move Layer Up</source>
        <translation>Move Layer Up</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Move Layer Down</translation>
    </message>
    <message>
        <source>New Canvas…</source>
        <translation>New Canvas…</translation>
    </message>
</context>
<context>
    <name>marlevo::NewCanvasSheet</name>
    <message>
        <source>Custom size</source>
        <translation>Custom size</translation>
    </message>
    <message>
        <source>Create Canvas</source>
        <translation>Create Canvas</translation>
    </message>
    <message>
        <source>New Canvas</source>
        <translation>New Canvas</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
</context>
<context>
    <name>marlevo::OpenPanel</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>There is no file “%1”.</translation>
    </message>
</context>
<context>
    <name>marlevo::PreferencesView</name>
    <message>
        <source>Default width</source>
        <translation>Default width</translation>
    </message>
    <message>
        <source>Default height</source>
        <translation>Default height</translation>
    </message>
    <message>
        <source>Auto-save every 30 seconds</source>
        <translation>Auto-save every 30 seconds</translation>
    </message>
    <message>
        <source>Default Canvas Size</source>
        <translation>Default Canvas Size</translation>
    </message>
    <message>
        <source>Auto-Save</source>
        <translation>Auto-Save</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Width:</translation>
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
        <translation>Save in:</translation>
    </message>
    <message>
        <source>A folder named “%1” exists.</source>
        <translation>A folder named “%1” exists.</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>The folder “%1” does not exist.</translation>
    </message>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>The name “%1” is too long.</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>“%1” already exists. Do you want to replace it?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>marlevo::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>marlevo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Keyboard Shortcuts</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Tools and View</source>
        <translation>Tools and View</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom In</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom Out</translation>
    </message>
    <message>
        <source>Delete Selected Stroke</source>
        <translation>Delete Selected Stroke</translation>
    </message>
</context>
<context>
    <name>marlevo::SidebarView</name>
    <message>
        <source>Sidebar</source>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layers</translation>
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
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>marlevo::TextFieldCommands</name>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>marlevo::ViewSection</name>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Back&#xad;ground color</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Trans&#xad;parent back&#xad;ground</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowAccessor::Coordinator</name>
    <message>
        <source>Do you want to save your drawing?</source>
        <translation>Do you want to save your drawing?</translation>
    </message>
    <message>
        <source>Your drawing will be lost if you don&apos;t save.</source>
        <translation>Your drawing will be lost if you don&apos;t save.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>&amp;Don&apos;t Save</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
</context>
</TS>
