#pragma once

#include "model/DrawingDocument.h"
#include "ui/Follower.h"

#include <QKeySequence>
#include <QMenuBar>

#include <functional>
#include <list>

namespace marlevo {

/// The menus of a document window; every command acts on that window's document.
class MenuCommands final : public QMenuBar {
    Q_OBJECT

public:
    /// The document must outlive the menus.
    explicit MenuCommands(DrawingDocument& document, QWidget* parent = nullptr);

private:
    void addFileMenu();
    void addEditMenu();
    void addCanvasMenu();
    void addLayersMenu(QMenu& canvasMenu);

    /// A key held down runs a command once.
    QAction& addCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                        std::function<void()> run);

    DrawingDocument& document_;
    std::list<Follower> followers_;
};

}  // namespace marlevo
