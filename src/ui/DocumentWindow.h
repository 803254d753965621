#pragma once

#include "model/DrawingDocument.h"
#include "platform/qt/QtFilePanels.h"
#include "ui/CanvasScrollArea.h"
#include "ui/MenuCommands.h"
#include "ui/SidebarView.h"
#include "ui/ToolBars.h"

#include <QMainWindow>
#include <QSplitter>

namespace marlevo {

/// A window with a drawing of its own.
class DocumentWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// The services must outlive the window. Without file panels among them the window shows its
    /// own.
    explicit DocumentWindow(const Services& services);

    DrawingDocument& document() { return document_; }
    CanvasView& canvasView() { return canvas_.view(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    // The views come after the document that they show, so that they go before it.
    QtFilePanels filePanels_;
    DrawingDocument document_;
    MenuCommands menus_;
    ViewToolBar viewTools_;
    QSplitter columns_;
    SidebarView sidebar_;
    CanvasScrollArea canvas_;
};

}  // namespace marlevo
