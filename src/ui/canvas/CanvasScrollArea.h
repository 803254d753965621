#pragma once

#include "model/Follower.h"
#include "ui/canvas/CanvasAccessibility.h"
#include "ui/canvas/CanvasView.h"

#include <QAbstractScrollArea>

namespace marlevo {

class DrawingDocument;
class ImageCache;

/// The canvas on its desk: scrolls in both directions, centres a canvas smaller than itself, and
/// draws the canvas's shadow. Its focus is the canvas's. A frame shows the focus if the focus was
/// set by a key, and from the first key on that the canvas gets.
class CanvasScrollArea final : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// Room around the canvas, in view points. It gives way where the canvas fits without it, so
    /// that a canvas that was fitted to the window needs no scrolling.
    static constexpr int margin = 12;

    /// The document and the cache must outlive the area.
    CanvasScrollArea(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

    CanvasView& view() { return view_; }

    /// The size that shows the whole canvas.
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void followFocus(const QEvent& event);
    void setFocusVisible(bool isVisible);
    void layOut();
    QPoint alignedToDevicePixels(QPoint viewportPosition) const;

    DrawingDocument& document_;
    // Declared before the view, whose destructor takes the focus away and so hides the ring.
    QWidget focusRing_;  ///< above the canvas, because a large canvas covers the area
    bool isFocusVisible_ = false;
    CanvasView view_;
    Follower layoutFollower_;
    CanvasDescriptionChanges descriptionChanges_;
};

}  // namespace marlevo
