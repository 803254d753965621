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

/// The menus of a window. Their commands act on the focused document, whichever window they stand
/// in, and are disabled while there is none or a sheet lies over it.
class MenuCommands final : public QMenuBar {
    Q_OBJECT

public:
    /// The application must outlive the menus; `window` is what Close closes.
    MenuCommands(MarlevoApp& app, QWidget* window);

    /// Whether a sheet lies over the document: its commands rest until the sheet goes.
    void setBehindSheet(bool isBehindSheet);

private:
    void addFileMenu();
    void addExportMenu(QMenu& file);
    void addEditMenu();
    void addCanvasMenu();
    void addLayersMenu(QMenu& canvas);
    QAction& addNewCanvas(QMenu& menu);

    /// A key held down runs a command once.
    QAction& addCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                        std::function<void()> run);
    /// A command that needs the focused document.
    QAction& addDocumentCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                                std::function<void(DrawingDocument&)> run);

    void followFocusedDocument();

    MarlevoApp& app_;
    bool isBehindSheet_ = false;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    std::vector<QAction*> documentActions_;
    std::optional<Follower> historyFollower_;
};

}  // namespace marlevo
