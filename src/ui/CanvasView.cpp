#include "ui/CanvasView.h"

#include "ui/CanvasAccessibility.h"
#include "ui/DevicePixels.h"
#include "ui/DisplaySize.h"
#include "ui/RoundedCorners.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace marlevo {

namespace {

constexpr double cornerRadius = 2;  // view points at every zoom

PixelBuffer pixelsOf(QImage& image, QPoint origin) {
    return {image.bits(),
            image.bytesPerLine(),
            {origin.x(), origin.y(), origin.x() + image.width(), origin.y() + image.height()},
            PixelOrder::bgra};
}

}  // namespace

CanvasView::CanvasView(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document),
      reader_(document.changeRegistry(), [this](DocumentProperty) { update(); }) {
    installCanvasAccessibility();
    setCursor(Qt::CrossCursor);
    setAccessibleName(tr("Canvas"));
    setAccessibleDescription(tr("The drawing. Press and drag to draw with the chosen tool."));
}

void CanvasView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    reader_.observe([&] { paintPicture(painter, event->rect()); });
}

void CanvasView::paintPicture(QPainter& painter, const QRect& exposed) {
    const double ratio = devicePixelRatioF();
    const QSizeF size = displaySize(document_.canvasSize, document_.zoom) * ratio;
    const QRect whole(0, 0, static_cast<int>(std::ceil(size.width())),
                      static_cast<int>(std::ceil(size.height())));

    const DevicePixels pixels(painter, QPointF(0, 0));
    const QRect part = pixels.touchedBy(exposed) & whole;
    if (part.isEmpty()) return;
    if (frame_.size() != part.size())
        frame_ = QImage(part.size(), QImage::Format_ARGB32_Premultiplied);
    if (frame_.isNull()) return;

    picture_.paint(document_, document_.zoom * ratio, pixelsOf(frame_, part.topLeft()));
    clipToRoundedRect(frame_, part.topLeft(), size, cornerRadius * ratio);
    pixels.drawImage(part.topLeft(), frame_);
}

void CanvasView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    endInterruptedDrag();
    drag_.press(position(*event));
    dragChanged(position(*event));
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    if (!drag_.isActive()) return;
    if (!(event->buttons() & Qt::LeftButton)) return endInterruptedDrag();
    drag_.moveTo(position(*event));
    dragChanged(position(*event));
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !drag_.isActive()) return;
    drag_.moveTo(position(*event));
    drag_.release();
    dragEnded();
}

void CanvasView::hideEvent(QHideEvent* event) {
    endInterruptedDrag();
    QWidget::hideEvent(event);
}

bool CanvasView::event(QEvent* event) {
    // Whoever took the window's place may keep the release to himself.
    if (event->type() == QEvent::WindowDeactivate) endInterruptedDrag();
    return QWidget::event(event);
}

/// In view points from the canvas's top left corner. An event's position in a child widget is cut
/// to whole points where the scale factor is fractional; its position in the window is not.
QPointF CanvasView::position(const QMouseEvent& event) const {
    return event.scenePosition() - mapTo(window(), QPointF(0, 0));
}

Point CanvasView::canvasPoint(QPointF position) const {
    return {position.x() / document_.zoom, position.y() / document_.zoom};
}

void CanvasView::dragChanged(QPointF position) {
    if (document_.isSelectTool || document_.isFillTool || document_.isEyeDropper) return;
    const Point p = canvasPoint(position);
    if (document_.currentStroke->has_value())
        document_.addPointToStroke(p);
    else
        document_.beginStroke(p);
}

void CanvasView::dragEnded() {
    if (document_.isSelectTool || document_.isFillTool || document_.isEyeDropper) return;
    document_.endStroke();
}

/// Ends a drag whose release does not come: what was drawn so far stays, and nothing was clicked.
void CanvasView::endInterruptedDrag() {
    if (!drag_.isActive()) return;
    drag_.release();
    dragEnded();
}

}  // namespace marlevo
