#include "ui/canvas/CanvasView.h"

#include "platform/qt/QtItemProviders.h"
#include "render/RasterCompositing.h"
#include "ui/canvas/CanvasAccessibility.h"
#include "ui/canvas/CanvasZoom.h"
#include "ui/canvas/PixelConversions.h"
#include "ui/canvas/RoundedCorners.h"
#include "ui/controls/AppearanceNotifier.h"
#include "ui/controls/Colors.h"
#include "ui/controls/DevicePixels.h"
#include "ui/controls/SemanticColors.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace marlevo {

namespace {

constexpr double cornerRadius = 2;  // view points at every zoom

constexpr double gridOpacity = 0.2;

/// Copies, because a file manager deletes the file after a move.
void acceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

/// Shows the wait pointer over all windows of the program during its lifetime.
class WaitPointer {
public:
    WaitPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

}  // namespace

CanvasView::CanvasView(DrawingDocument& document, ImageCache& images, QWidget* parent)
    : QWidget(parent), document_(document), picture_(images), gesture_(document),
      releaseWatch_(*this, [this] { interruptGesture(); }), imageDrop_(document),
      reader_(document.changeRegistry(), [this](DocumentProperty property) { follow(property); }),
      pointerShape_(document.changeRegistry(), [this] { showPointerOfTool(); }) {
    installCanvasAccessibility();
    setAcceptDrops(true);
    setMouseTracking(true);  // a move with the button up means that a release was lost
    setAccessibleName(tr("Canvas"));
    updateColors();
    connect(&AppearanceNotifier::instance(), &AppearanceNotifier::paletteChanged, this,
            &CanvasView::updateColors);
    updateWhatChanged();
}

void CanvasView::updateColors() {
    picture_.setGridColor(toColor(withOpacity(semanticColor(SemanticColor::gray), gridOpacity)));
    update();
}

/// Defers the update to the end of the event, because an operation publishes intermediate states (a
/// committed stroke exists twice, a loaded picture still has its old size). A growing stroke is
/// shown at once: it changes alone, and with each event.
void CanvasView::follow(DocumentProperty property) {
    if (isChangeAnnounced_) return;
    if (property == DocumentProperty::currentStroke) return updateWhatChanged();
    isChangeAnnounced_ = true;
    QMetaObject::invokeMethod(this, &CanvasView::updateWhatChanged, Qt::QueuedConnection);
}

void CanvasView::updateWhatChanged() {
    isChangeAnnounced_ = false;
    reader_.observe([&] {
        picture_.update(sceneOf(document_, deviceScale()));
        if (const auto damage = picture_.takeDamage()) {
            for (const IntRect& area : *damage)
                updateDevicePixels(toQRect(area));
        } else {
            update();
        }
        updateOverlay();
        // Opaque, so that the desk below is not painted, unless the canvas ends within a view
        // point.
        setAttribute(Qt::WA_OpaquePaintEvent,
                     displaySize(document_.canvasSize, document_.zoom) == QSizeF(size()));
    });
}

void CanvasView::updateOverlay() {
    const CanvasOverlay overlay(document_);
    for (const QRectF& area : overlay.outlineDamage(shownOverlay_, deviceScale()))
        updateDevicePixels(area);
    update(overlay.eyeDropperDamage(shownOverlay_, QRectF(rect())).toAlignedRect());
    shownOverlay_ = overlay;
}

/// `area` is relative to the canvas's top left corner.
void CanvasView::updateDevicePixels(const QRectF& area) {
    const double ratio = devicePixelRatioF();
    const QRectF seen = area & QRectF(QPointF(0, 0), QSizeF(size()) * ratio);
    if (!seen.isEmpty()) update(touchedPoints(seen, ratio));
}

void CanvasView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const DevicePixels pixels(painter, QPointF(0, 0));
    picture_.update(sceneOf(document_, deviceScale()));
    picture_.prepare(toIntRect(pixels.touchedBy(event->rect())));
    const bool hasDesk = testAttribute(Qt::WA_OpaquePaintEvent);
    for (const QRect& exposed : event->region()) {
        if (hasDesk) painter.fillRect(exposed, palette().window());
        paintPicture(pixels, exposed);
    }
    CanvasOverlay(document_).paintEyeDropper(painter, QRectF(rect()));
    if (picture_.hasTilesToEvict())
        picture_.evictTiles(toIntRect(pixels.touchedBy(visibleRegion().boundingRect())));
}

void CanvasView::paintPicture(const DevicePixels& pixels, const QRect& exposed) {
    const double ratio = devicePixelRatioF();
    const QSizeF size = displaySize(document_.canvasSize, document_.zoom) * ratio;
    const QRect whole(0, 0, static_cast<int>(std::ceil(size.width())),
                      static_cast<int>(std::ceil(size.height())));

    const QRect part = pixels.touchedBy(exposed) & whole;
    if (part.isEmpty()) return;
    frame_.resize(static_cast<std::size_t>(part.width()) * part.height() * 4);
    QImage frame(frame_.data(), part.width(), part.height(), qsizetype(part.width()) * 4,
                 QImage::Format_ARGB32_Premultiplied);

    picture_.paint(pixelsOf(frame, part.topLeft()));
    CanvasOverlay(document_).paintOutline(frame, part.topLeft(), deviceScale());
    clipToRoundedRect(frame, part.topLeft(), size, cornerRadius * ratio);
    pixels.drawImage(part.topLeft(), frame);
}

void CanvasView::showPointerOfTool() {
    if (document_.isFillTool)
        setCursor(Qt::PointingHandCursor);
    else if (document_.isSelectTool)
        setCursor(document_.selectionDragStartPositions->has_value() ? Qt::SizeAllCursor
                                                                     : Qt::ArrowCursor);
    else
        setCursor(Qt::CrossCursor);
}

void CanvasView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const Point at = viewPoint(*event);
    clickDetector_.press(at);
    releaseWatch_.start();
    gesture_.begin(canvasPoint(at));
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return interruptGesture();
    const Point at = viewPoint(*event);
    clickDetector_.move(at);
    const Size way = clickDetector_.sincePress(at);
    gesture_.move({canvasPoint(at), {way.width / document_.zoom, way.height / document_.zoom}});
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !gesture_.isActive()) return;
    const Point at = viewPoint(*event);
    const Click click = clickDetector_.release(at);
    releaseWatch_.stop();
    std::optional<WaitPointer> wait;
    if (click == Click::yes && document_.isFillTool) wait.emplace();
    gesture_.end(canvasPoint(at), click);
}

void CanvasView::interruptGesture() {
    releaseWatch_.stop();
    gesture_.interrupt();
}

void CanvasView::hideEvent(QHideEvent* event) {
    interruptGesture();
    picture_.releaseMemory();
    QWidget::hideEvent(event);
}

void CanvasView::dragEnterEvent(QDragEnterEvent* event) {
    const auto items = itemProviders(*event->mimeData());
    if (std::ranges::any_of(items, [](const auto& item) { return item->offersImage(); }))
        acceptCopy(*event);
}

void CanvasView::dropEvent(QDropEvent* event) {
    if (imageDrop_.handleDrop(itemProviders(*event->mimeData()))) acceptCopy(*event);
}

/// In view points from the canvas's top left corner. At a fractional scale factor, an event's
/// position in a child widget is rounded to whole points; its position in the window is exact.
Point CanvasView::viewPoint(const QMouseEvent& event) const {
    const QPointF at = event.scenePosition() - mapTo(window(), QPointF(0, 0));
    return {at.x(), at.y()};
}

Point CanvasView::canvasPoint(Point viewPoint) const {
    return {viewPoint.x / document_.zoom, viewPoint.y / document_.zoom};
}

}  // namespace marlevo
