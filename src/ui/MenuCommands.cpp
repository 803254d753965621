#include "ui/MenuCommands.h"

#include <QCoreApplication>
#include <QMenu>

#include <utility>

namespace marlevo {

namespace {

std::int64_t layerCount(const DrawingDocument& document) {
    return static_cast<std::int64_t>(document.layers->size());
}

void deleteActiveLayer(DrawingDocument& document) {
    if (layerCount(document) > 1) document.deleteLayer(document.activeLayerIndex);
}

void moveActiveLayerUp(DrawingDocument& document) {
    const std::int64_t index = document.activeLayerIndex;
    if (index < layerCount(document) - 1) document.moveLayer(index, index + 1);
}

void moveActiveLayerDown(DrawingDocument& document) {
    const std::int64_t index = document.activeLayerIndex;
    if (index > 0) document.moveLayer(index, index - 1);
}

}  // namespace

MenuCommands::MenuCommands(DrawingDocument& document, QWidget* parent)
    : QMenuBar(parent), document_(document) {
    addFileMenu();
    addEditMenu();
    addCanvasMenu();
}

void MenuCommands::addFileMenu() {
    QMenu& file = *addMenu(tr("&File"));
    QMenu& formats = *file.addMenu(tr("Export…"));
    addCommand(formats, tr("PNG"), {}, [this] { document_.performExport(ExportFormat::png); });

    // A submenu does nothing by itself when its shortcut is typed: show the formats.
    QAction& exportItem = *formats.menuAction();
    exportItem.setShortcut(QKeySequence(tr("Ctrl+Shift+E")));
    exportItem.setAutoRepeat(false);
    connect(&exportItem, &QAction::triggered, this,
            [this, &formats] { formats.popup(mapToGlobal(rect().bottomLeft())); });

    file.addSeparator();
    addCommand(file, tr("Quit"), QKeySequence(tr("Ctrl+Q")), &QCoreApplication::quit);
}

void MenuCommands::addEditMenu() {
    QMenu& edit = *addMenu(tr("&Edit"));
    QAction& undo =
        addCommand(edit, tr("Undo"), QKeySequence(tr("Ctrl+Z")), [this] { document_.undo(); });
    QAction& redo = addCommand(edit, tr("Redo"), QKeySequence(tr("Ctrl+Shift+Z")),
                               [this] { document_.redo(); });
    followers_.emplace_back(document_, [this, &undo] { undo.setEnabled(document_.canUndo()); });
    followers_.emplace_back(document_, [this, &redo] { redo.setEnabled(document_.canRedo()); });
}

void MenuCommands::addCanvasMenu() {
    QMenu& canvas = *addMenu(tr("&Canvas"));
    addCommand(canvas, tr("Clear Active Layer"), QKeySequence(tr("Ctrl+K")),
               [this] { document_.clearActiveLayer(); });
    addCommand(canvas, tr("Clear All Layers"), {}, [this] { document_.clearAll(); });
    canvas.addSeparator();
    addCommand(canvas, tr("Toggle Grid"), QKeySequence(tr("Ctrl+G")),
               [this] { document_.showGrid = !document_.showGrid; });
    canvas.addSeparator();
    addLayersMenu(canvas);
}

void MenuCommands::addLayersMenu(QMenu& canvasMenu) {
    QMenu& layers = *canvasMenu.addMenu(tr("Layers"));
    addCommand(layers, tr("Add Layer"), QKeySequence(tr("Ctrl+Shift+L")),
               [this] { document_.addLayer(); });
    addCommand(layers, tr("Delete Active Layer"), {}, [this] { deleteActiveLayer(document_); });
    addCommand(layers, tr("Move Layer Up"), {}, [this] { moveActiveLayerUp(document_); });
    addCommand(layers, tr("Move Layer Down"), {}, [this] { moveActiveLayerDown(document_); });
}

QAction& MenuCommands::addCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                                  std::function<void()> run) {
    QAction& action = *menu.addAction(title);
    action.setShortcut(shortcut);
    action.setAutoRepeat(false);
    connect(&action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    return action;
}

}  // namespace marlevo
