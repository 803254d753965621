#pragma once

#include "model/Follower.h"
#include "ui/canvas/CanvasAccessibility.h"
#include "ui/canvas/CanvasView.h"

#include <QAbstractScrollArea>

namespace marlevo {

class DrawingDocument;
class ImageCache;

/// The canvas on its desk: scrolls in both directions, centres a canvas smaller than itself, and
/// draws the canvas's shadow.
class CanvasScrollArea final : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// Room around the canvas, in view points. Less than what fitting the canvas to the window
    /// leaves beside it, so that a canvas that was fitted needs no scrolling.
    static constexpr int margin = 12;

    /// The document and the cache must outlive the area.
    CanvasScrollArea(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

    CanvasView& view() { return view_; }

    /// With the whole canvas in sight.
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    QPoint alignedToDevicePixels(QPoint viewportPosition) const;

    DrawingDocument& document_;
    CanvasView view_;
    Follower layoutFollower_;
    CanvasDescriptionChanges descriptionChanges_;
    QWidget focusRing_;  ///< over the canvas, which fills the area when it is large
};

}  // namespace marlevo
