<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>%1 trazo</translation>
    </message>
    <message>
        <source>multiple_strokes</source>
        <translation>%1 trazos</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Drawing-</source>
        <translation>Dibujo-</translation>
    </message>
    <message>
        <source>Export Drawing</source>
        <translation>Exportar dibujo</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>Imagen PNG</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>Imagen JPEG</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>Imagen TIFF</translation>
    </message>
    <message>
        <source>BMP image</source>
        <translation>Imagen BMP</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>Documento PDF</translation>
    </message>
    <message>
        <source>Marlevo drawing</source>
        <translation>Dibujo de Marlevo</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Abrir dibujo</translation>
    </message>
    <message>
        <source>Save Drawing</source>
        <translation>Guardar dibujo</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Square 1:1 (1080×1080)</source>
        <translation>Cuadrado 1:1 (1080×1080)</translation>
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
        <translation>A4 vertical (2480×3508)</translation>
    </message>
    <message>
        <source>A4 Landscape (3508×2480)</source>
        <translation>A4 horizontal (3508×2480)</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Encuadernación por el borde largo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Encuadernación por el borde corto</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Indique páginas o intervalos separados por comas. Un intervalo se escribe con dos números separados por un guion. Por ejemplo, 3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9.</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>Draw</source>
        <translation>Dibu&#xad;jar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selec&#xad;cio&#xad;nar</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borra&#xad;dor</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Relle&#xad;nar</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Cuenta&#xad;gotas</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectán&#xad;gulo</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
</context>
<context>
    <name>marlevo::ActionRow</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Opens a menu</source>
        <translation>Abre un menú</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasScrollArea</name>
    <message>
        <source>Drawing area</source>
        <translation>Área de dibujo</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
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
        <translation>Color negro</translation>
    </message>
    <message>
        <source>Color white</source>
        <translation>Color blanco</translation>
    </message>
    <message>
        <source>Color red</source>
        <translation>Color rojo</translation>
    </message>
    <message>
        <source>Color orange</source>
        <translation>Color naranja</translation>
    </message>
    <message>
        <source>Color yellow</source>
        <translation>Color amarillo</translation>
    </message>
    <message>
        <source>Color green</source>
        <translation>Color verde</translation>
    </message>
    <message>
        <source>Color blue</source>
        <translation>Color azul</translation>
    </message>
    <message>
        <source>Color purple</source>
        <translation>Color morado</translation>
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
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>%1px</source>
        <translation>%1&#xa0;px</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
</context>
<context>
    <name>marlevo::ExportPopover</name>
    <message>
        <source>Export as</source>
        <translation>Exportar como</translation>
    </message>
</context>
<context>
    <name>marlevo::EyeButton</name>
    <message>
        <source>Hide layer</source>
        <translation>Ocultar capa</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Mostrar capa</translation>
    </message>
    <message>
        <source>Hide layer: %1</source>
        <translation>Ocultar capa: %1</translation>
    </message>
    <message>
        <source>Show layer: %1</source>
        <translation>Mostrar capa: %1</translation>
    </message>
</context>
<context>
    <name>marlevo::FormsSection</name>
    <message>
        <source>Forms</source>
        <translation>Formas</translation>
    </message>
</context>
<context>
    <name>marlevo::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>About Marlevo</source>
        <translation>Acerca de Marlevo</translation>
    </message>
    <message>
        <source>Marlevo</source>
        <translation>Marlevo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Draw with the mouse: strokes, shapes and layers.</source>
        <translation>Dibuje con el ratón: trazos, formas y capas.</translation>
    </message>
</context>
<context>
    <name>marlevo::LayerRows</name>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
</context>
<context>
    <name>marlevo::LayersSection</name>
    <message>
        <source>Add layer</source>
        <translation>Añadir capa</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>Eliminar capa</translation>
    </message>
    <message>
        <source>Move layer up</source>
        <translation>Subir capa</translation>
    </message>
    <message>
        <source>Move layer down</source>
        <translation>Bajar capa</translation>
    </message>
</context>
<context>
    <name>marlevo::MenuCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nueva ventana</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Copy Canvas</source>
        <translation>Copiar lienzo</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Lienzo</translation>
    </message>
    <message>
        <source>Clear Active Layer</source>
        <translation>Vaciar la capa activa</translation>
    </message>
    <message>
        <source>Clear All Layers</source>
        <translation>Vaciar todas las capas</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Mostrar u ocultar la cuadrícula</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Add Layer</source>
        <translation>Añadir capa</translation>
    </message>
    <message>
        <source>Delete Active Layer</source>
        <translation>Eliminar la capa activa</translation>
    </message>
    <message>
        <source>Move Layer Up</source>
        <translation>Subir capa</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Bajar capa</translation>
    </message>
    <message>
        <source>New Canvas…</source>
        <translation>Nuevo lienzo…</translation>
    </message>
</context>
<context>
    <name>marlevo::NewCanvasSheet</name>
    <message>
        <source>Custom size</source>
        <translation>Tamaño personalizado</translation>
    </message>
    <message>
        <source>Create Canvas</source>
        <translation>Crear lienzo</translation>
    </message>
    <message>
        <source>New Canvas</source>
        <translation>Nuevo lienzo</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>No existe el archivo «%1».</translation>
    </message>
</context>
<context>
    <name>marlevo::PreferencesView</name>
    <message>
        <source>Default width</source>
        <translation>Ancho predeterminado</translation>
    </message>
    <message>
        <source>Default height</source>
        <translation>Alto predeterminado</translation>
    </message>
    <message>
        <source>Auto-save every 30 seconds</source>
        <translation>Guardar automáticamente cada 30 segundos</translation>
    </message>
    <message>
        <source>Default Canvas Size</source>
        <translation>Tamaño predeterminado del lienzo</translation>
    </message>
    <message>
        <source>Auto-Save</source>
        <translation>Guardado automático</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Ancho:</translation>
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
        <translation>Guardar en:</translation>
    </message>
    <message>
        <source>A folder named “%1” exists.</source>
        <translation>Ya existe una carpeta llamada «%1».</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>La carpeta «%1» no existe.</translation>
    </message>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>El nombre «%1» es demasiado largo.</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>marlevo::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Preferencias</translation>
    </message>
</context>
<context>
    <name>marlevo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Tools and View</source>
        <translation>Herramientas y vista</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Delete Selected Stroke</source>
        <translation>Eliminar el trazo seleccionado</translation>
    </message>
</context>
<context>
    <name>marlevo::SidebarView</name>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
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
        <translation>Ajustar</translation>
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
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>marlevo::ViewSection</name>
    <message>
        <source>Grid</source>
        <translation>Cuadrí&#xad;cula</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Fondo transpa&#xad;rente</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowAccessor::Coordinator</name>
    <message>
        <source>Do you want to save your drawing?</source>
        <translation>¿Desea guardar el dibujo?</translation>
    </message>
    <message>
        <source>Your drawing will be lost if you don&apos;t save.</source>
        <translation>El dibujo se perderá si no lo guarda.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>&amp;No guardar</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
</context>
</TS>
