#pragma once

#include "platform/qt/QtFilePanels.h"

#include <QMainWindow>

#include <memory>

namespace marlevo {

class ContentView;
class DrawingDocument;
class MarlevoApp;
class MenuCommands;

/// A window with one drawing: the menus above its content.
class DocumentWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// The application must outlive the window. If its services have no file panels, the window has
    /// panels of its own.
    explicit DocumentWindow(MarlevoApp& app);

    ~DocumentWindow() override;

    DrawingDocument& document();
    ContentView& content() { return *content_; }
    QWidget& canvasView();

    /// Closes the window; the close guard may ask the user and refuse. Open panels are cancelled
    /// first, because they would block the close; an open question of the guard stays.
    void closeDismissingPanels();

Q_SIGNALS:
    /// The window has closed. It is deleted after the current event.
    void closed();

    /// The user has cancelled the close.
    void kept();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void followSheet();

    // Each is destroyed before those declared above it: the menus use the document of the content,
    // which uses the panels.
    QtFilePanels filePanels_;
    std::unique_ptr<ContentView> content_;
    std::unique_ptr<MenuCommands> menus_;
};

}  // namespace marlevo
