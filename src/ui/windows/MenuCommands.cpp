#include "ui/windows/MenuCommands.h"

#include "io/Export.h"
#include "io/Save.h"
#include "model/DrawingDocument.h"
#include "model/LayerOperations.h"
#include "ui/windows/Commands.h"
#include "ui/windows/HelpMenu.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/TextFieldCommands.h"
#include "ui/windows/WindowMenu.h"

#include <QMenu>

#include <utility>

namespace marlevo {

MenuCommands::MenuCommands(MarlevoApp& app, DrawingDocument& document, QWidget* window)
    : QMenuBar(window), app_(app), document_(document) {
    addFileMenu();
    addEditMenu();
    addCanvasMenu();
    addMenu(new WindowMenu(app, *window));
    addMenu(new HelpMenu(*this));
    historyFollower_.emplace(document.changeRegistry(), [this] { showHistory(); });
}

void MenuCommands::addFileMenu() {
    QMenu& file = *addMenu(tr("&File"));
    addCommand(file, tr("New Window"), Qt::CTRL | Qt::SHIFT | Qt::Key_N,
               [this] { app_.openWindow(); });
    addNewCanvas(file);
    addCommand(file, tr("Open…"), Qt::CTRL | Qt::Key_O,
               [this] { app_.openDocument(document_.services()); });
    file.addSeparator();
    addCommand(file, tr("Close"), Qt::CTRL | Qt::Key_W, [this] { window()->close(); });
    addDocumentCommand(file, tr("Save"), Qt::CTRL | Qt::Key_S, save);
    addDocumentCommand(file, tr("Save As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, saveAs);
    file.addSeparator();
    addDocumentCommand(file, tr("Print…"), Qt::CTRL | Qt::Key_P, printDocument);
    addExportMenu(file);
    file.addSeparator();
    addCommand(file, tr("Quit"), Qt::CTRL | Qt::Key_Q, [this] { app_.quit(); });
}

void MenuCommands::addExportMenu(QMenu& file) {
    QMenu& formats = *file.addMenu(tr("Export…"));
    for (const ExportFormat format : allExportFormats) {
        const std::string_view name = rawValue(format);
        addDocumentCommand(formats, QString::fromUtf8(name.data(), qsizetype(name.size())), {},
                           [format](DrawingDocument& d) { performExport(d, format); });
    }
    // The shortcut of a submenu does not open it by itself.
    QAction& exportItem = *formats.menuAction();
    setCommandShortcut(exportItem, Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    connect(&exportItem, &QAction::triggered, this, [this, &formats] {
        formats.popup(mapToGlobal(rect().bottomLeft()));
        formats.setActiveAction(formats.actions().first());
    });
    documentActions_.push_back(&exportItem);
}

void MenuCommands::addEditMenu() {
    QMenu& edit = *addMenu(tr("&Edit"));
    undo_ = &addDocumentCommand(edit, tr("Undo"), Qt::CTRL | Qt::Key_Z, &DrawingDocument::undo);
    redo_ = &addDocumentCommand(edit, tr("Redo"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
                                &DrawingDocument::redo);
    edit.addSeparator();
    new TextFieldCommands(edit, *window());
    addDocumentCommand(edit, tr("Copy Canvas"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, copyToClipboard);
    edit.addSeparator();
    addCommand(edit, tr("Settings…"), Qt::CTRL | Qt::Key_Comma, [this] { app_.showSettings(); });
}

void MenuCommands::addCanvasMenu() {
    QMenu& canvas = *addMenu(tr("&Canvas"));
    // Two active items with one shortcut would be ambiguous. This one only displays it.
    addNewCanvas(canvas).setShortcutContext(Qt::WidgetShortcut);
    canvas.addSeparator();
    addDocumentCommand(canvas, tr("Clear Active Layer"), Qt::CTRL | Qt::Key_K,
                       &DrawingDocument::clearActiveLayer);
    addDocumentCommand(canvas, tr("Clear All Layers"), {}, &DrawingDocument::clearAll);
    canvas.addSeparator();
    addDocumentCommand(canvas, tr("Toggle Grid"), Qt::CTRL | Qt::Key_G,
                       [](DrawingDocument& d) { d.showGrid = !d.showGrid; });
    canvas.addSeparator();
    addLayersMenu(canvas);
}

void MenuCommands::addLayersMenu(QMenu& canvas) {
    QMenu& layers = *canvas.addMenu(tr("Layers"));
    addDocumentCommand(layers, tr("Add Layer"), Qt::CTRL | Qt::SHIFT | Qt::Key_L,
                       &DrawingDocument::addLayer);
    addDocumentCommand(layers, tr("Delete Active Layer"), {}, deleteActiveLayer);
    addDocumentCommand(layers, tr("Move Layer Up"), {}, moveActiveLayerUp);
    addDocumentCommand(layers, tr("Move Layer Down"), {}, moveActiveLayerDown);
}

QAction& MenuCommands::addNewCanvas(QMenu& menu) {
    return addCommand(menu, tr("New Canvas…"), Qt::CTRL | Qt::Key_N,
                      [this] { app_.notifications().post(notification::newCanvas); });
}

QAction& MenuCommands::addDocumentCommand(QMenu& menu, const QString& title,
                                          const QKeySequence& shortcut,
                                          std::function<void(DrawingDocument&)> run) {
    QAction& action =
        addCommand(menu, title, shortcut, [this, run = std::move(run)] { run(document_); });
    documentActions_.push_back(&action);
    return action;
}

void MenuCommands::setCover(Cover cover) {
    cover_ = cover;
    for (QAction* const action : documentActions_)
        action->setEnabled(cover == Cover::none);
    historyFollower_->refresh();
}

void MenuCommands::showHistory() {
    undo_->setEnabled(document_.canUndo() && cover_ == Cover::none);
    redo_->setEnabled(document_.canRedo() && cover_ == Cover::none);
}

}  // namespace marlevo
