#pragma once

#include "platform/qt/QtFilePanels.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/MenuCommands.h"

#include <QMainWindow>

namespace marlevo {

class MarlevoApp;

/// A window with a drawing of its own: its content below the menus.
class DocumentWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// The application must outlive the window. Without file panels among its services the window
    /// shows its own.
    explicit DocumentWindow(MarlevoApp& app);

    DrawingDocument& document() { return content_.document(); }
    ContentView& content() { return content_; }
    CanvasView& canvasView() { return content_.canvasView(); }

    /// Closes the window as the user would, who may keep it. Panels that are open over it would
    /// stand in the way: they are answered as cancelled.
    void closeDismissingPanels();

Q_SIGNALS:
    /// The window has closed and goes away after the current event.
    void closed();

    /// The user was asked and keeps the window.
    void kept();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    // The panels come before the document that shows them, so that they go after it.
    QtFilePanels filePanels_;
    ContentView content_;
    MenuCommands menus_;
};

}  // namespace marlevo
