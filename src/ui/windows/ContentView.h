#pragma once

#include "io/AutoSave.h"
#include "model/DrawingDocument.h"
#include "model/ImageCache.h"
#include "platform/NotificationCenter.h"
#include "ui/canvas/CanvasScrollArea.h"
#include "ui/canvas/StatusBar.h"
#include "ui/controls/SheetHost.h"
#include "ui/sidebar/SidebarView.h"
#include "ui/windows/KeyMonitor.h"
#include "ui/windows/WindowAccessor.h"
#include "ui/windows/WindowTitleUpdater.h"

#include <QPointer>
#include <QSplitter>
#include <QWidget>

#include <optional>

namespace marlevo {

/// The content of a document window. Owns the document and shows the sidebar, the canvas with the
/// status bar, and the new-canvas sheet over them.
class ContentView final : public QWidget {
    Q_OBJECT

public:
    /// The services and the notifications must outlive the view.
    ContentView(const Services& services, NotificationCenter& notifications);

    DrawingDocument& document() { return document_; }
    CanvasView& canvasView() { return canvas_.view(); }
    WindowAccessor::Coordinator& closeGuard() { return closeGuard_; }

    /// The name of the file; the program's name for a drawing without a file.
    QString windowTitle() const;

    /// True while the new-canvas sheet covers the content, as it does at first. Each time shows a
    /// new sheet.
    bool showNewCanvas() const { return !sheet_.isNull(); }
    void setShowNewCanvas(bool show);

    /// Sets the zoom at which the canvas fits into the application's active window, clamped to the
    /// range of the zoom. Does nothing without an active window.
    void fitToWindow();

    /// True if auto-save keeps the drawing.
    bool isAutoSaved() const { return autoSave_ && autoSave_->isOn(); }

    /// Ends the gesture on the canvas and saves as auto-save does: before the program is ended.
    void saveBeforeEnd();

Q_SIGNALS:
    void showNewCanvasChanged();

protected:
    /// Passes the focus on to the canvas.
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void firstShown();

    // The views are declared after the document and the cache and so are destroyed before them.
    ImageCache images_;
    DrawingDocument document_;
    QSplitter columns_;
    SidebarView sidebar_;
    CanvasScrollArea canvas_;
    StatusBar statusBar_;
    WindowAccessor::Coordinator closeGuard_;
    WindowTitleUpdater titleUpdater_;
    NotificationCenter::Observation newCanvasRequests_;
    QPointer<SheetHost> sheet_;
    std::optional<AutoSave> autoSave_;
    std::optional<KeyMonitor> keyMonitor_;
};

}  // namespace marlevo
