#pragma once

#include "model/ExportFormat.h"
#include "model/Follower.h"

#include <QKeySequence>
#include <QMenuBar>

#include <functional>
#include <optional>
#include <vector>

namespace marlevo {

class DrawingDocument;
class MarlevoApp;

/// The menus of a document window. Their commands act on the window's document, whichever window
/// has the focus, and are disabled while a sheet covers it.
class MenuCommands final : public QMenuBar {
    Q_OBJECT

public:
    /// The application and the document must outlive the menus. Close closes `window`.
    MenuCommands(MarlevoApp& app, DrawingDocument& document, QWidget* window);

    /// Whether a sheet covers the document. The commands on the document are then disabled.
    enum class Cover { none, sheet };
    void setCover(Cover cover);

private:
    void addFileMenu();
    void addExportMenu(QMenu& file);
    void addEditMenu();
    void addCanvasMenu();
    void addLayersMenu(QMenu& canvas);
    QAction& addNewCanvas(QMenu& menu);

    /// A command on the document.
    QAction& addDocumentCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                                std::function<void(DrawingDocument&)> run);

    void showHistory();

    MarlevoApp& app_;
    DrawingDocument& document_;
    Cover cover_ = Cover::none;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    std::vector<QAction*> documentActions_;
    std::optional<Follower> historyFollower_;
};

}  // namespace marlevo
