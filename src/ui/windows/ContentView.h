#pragma once

#include "model/DrawingDocument.h"
#include "model/ImageCache.h"
#include "ui/windows/WindowAccessor.h"

#include <QWidget>

#include <memory>

namespace marlevo {

class NotificationCenter;

/// The content of a document window. Owns the document and shows the sidebar, the canvas with the
/// status bar, and the new-canvas sheet over them.
class ContentView final : public QWidget {
    Q_OBJECT

public:
    /// The services and the notifications must outlive the view.
    ContentView(const Services& services, NotificationCenter& notifications);
    ~ContentView() override;

    DrawingDocument& document() { return document_; }
    QWidget& canvasView();
    WindowAccessor::Coordinator& closeGuard() { return closeGuard_; }

    /// The name of the file; the program's name for a drawing without a file.
    QString windowTitle() const;

    /// True while the new-canvas sheet covers the content, as it does at first. Each time shows a
    /// new sheet.
    bool showNewCanvas() const;
    void setShowNewCanvas(bool show);

    /// Sets the zoom at which the canvas fits into the application's active window, clamped to the
    /// range of the zoom. Does nothing without an active window.
    void fitToWindow();

    /// True if the last write of auto-save holds the drawing of its moment.
    bool isSaved() const;

    /// Ends the gesture on the canvas and saves as auto-save does: before the program is ended.
    void saveBeforeEnd();

Q_SIGNALS:
    void showNewCanvasChanged();

protected:
    /// Passes the focus on to the canvas.
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Parts;

    void firstShown();

    // Each is destroyed before those declared above it: the parts use the document and the cache.
    ImageCache images_;
    DrawingDocument document_;
    WindowAccessor::Coordinator closeGuard_;
    const std::unique_ptr<Parts> parts_;
};

}  // namespace marlevo
