#include "ui/canvas/CanvasView.h"

#include "platform/qt/QtItemProviders.h"
#include "render/SelectionOutline.h"
#include "ui/canvas/CanvasAccessibility.h"
#include "ui/canvas/DisplaySize.h"
#include "ui/canvas/RoundedCorners.h"
#include "ui/canvas/WaitPointer.h"
#include "ui/controls/Colors.h"
#include "ui/controls/DesktopLook.h"
#include "ui/controls/DevicePixels.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

constexpr double cornerRadius = 2;  // view points at every zoom

// The outline of the selection, in canvas pixels.
constexpr double outlineRadius = 4;
constexpr double outlineWidth = 2;
constexpr double outlineDash = 5;
constexpr double outlineGap = 3;

constexpr double gridOpacity = 0.2;
constexpr double eyeDropperOpacity = 0.4;

IntRect toIntRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

PixelBuffer pixelsOf(QImage& image, QPoint origin) {
    return {image.bits(), image.bytesPerLine(), toIntRect(QRect(origin, image.size())),
            PixelOrder::bgra};
}

QRectF toQRect(const IntRect& rect) {
    return QRectF(rect.left, rect.top, rect.width(), rect.height());
}

/// Never a move, which would make a file manager take its file away.
void acceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

}  // namespace

CanvasView::Overlay CanvasView::Overlay::of(const DrawingDocument& document) {
    Overlay overlay;
    if (const auto rect = document.selectedStrokeBoundingRect())
        overlay.outline = Outline{*rect, selectionOutlineOpacity(document)};
    overlay.hasEyeDropper = document.isEyeDropper;
    return overlay;
}

CanvasView::CanvasView(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document), imageDrop_(document),
      reader_(document.changeRegistry(), [this](DocumentProperty property) { follow(property); }),
      pointerShape_(document, [this] { showPointerOfTool(); }) {
    installCanvasAccessibility();
    setAcceptDrops(true);
    setAccessibleName(tr("Canvas"));
    takeColors();
    connect(&DesktopLook::instance(), &DesktopLook::paletteChanged, this, &CanvasView::takeColors);
    updateWhatChanged();
}

void CanvasView::takeColors() {
    picture_.setGridColor(toColor(withOpacity(semanticColor(SemanticColor::gray), gridOpacity)));
    update();
}

/// Looks at what changed once the current event is over: until then a stroke that joins its layer
/// is there twice, or the picture of a file still has the old size. Only a stroke that grows does
/// not wait: it changes with each event, and alone.
void CanvasView::follow(DocumentProperty property) {
    if (isChangeAnnounced_) return;
    if (property == DocumentProperty::currentStroke) return updateWhatChanged();
    isChangeAnnounced_ = true;
    QMetaObject::invokeMethod(this, &CanvasView::updateWhatChanged, Qt::QueuedConnection);
}

void CanvasView::updateWhatChanged() {
    isChangeAnnounced_ = false;
    reader_.observe([&] {
        if (const auto changes = picture_.takeChanges(document_, deviceScale())) {
            for (const IntRect& area : *changes)
                updateDevicePixels(toQRect(area));
        } else {
            update();
        }
        updateOverlay();
        // Spares painting all that lies below, where the canvas does not end within a point.
        setAttribute(Qt::WA_OpaquePaintEvent,
                     displaySize(document_.canvasSize, document_.zoom) == QSizeF(size()));
    });
}

void CanvasView::updateOverlay() {
    const Overlay overlay = Overlay::of(document_);
    if (overlay.outline != shownOverlay_.outline) {
        updateOutline(shownOverlay_.outline);
        updateOutline(overlay.outline);
    }
    if (overlay.hasEyeDropper != shownOverlay_.hasEyeDropper)
        update(eyeDropperPlace().toAlignedRect());
    shownOverlay_ = overlay;
}

/// Its four sides, since there may be much between them.
void CanvasView::updateOutline(const std::optional<Outline>& outline) {
    if (!outline) return;
    const double scale = deviceScale();
    const double reach = outlineWidth / 2 * scale + 1;  // and what anti-aliasing touches
    const double corner = std::max(outlineRadius * scale, reach);
    const Rect& rect = outline->rect;
    const QRectF line(rect.origin.x * scale, rect.origin.y * scale, rect.size.width * scale,
                      rect.size.height * scale);
    const QRectF outside = line.adjusted(-reach, -reach, reach, reach);
    const QRectF inside = line.adjusted(corner, corner, -corner, -corner);
    if (!inside.isValid()) return updateDevicePixels(outside);
    updateDevicePixels(QRectF(outside.topLeft(), QPointF(outside.right(), inside.top())));
    updateDevicePixels(QRectF(QPointF(outside.left(), inside.bottom()), outside.bottomRight()));
    updateDevicePixels(QRectF(QPointF(outside.left(), inside.top()), inside.bottomLeft()));
    updateDevicePixels(QRectF(inside.topRight(), QPointF(outside.right(), inside.bottom())));
}

/// `area` counts from the canvas's top left corner.
void CanvasView::updateDevicePixels(const QRectF& area) {
    const double ratio = devicePixelRatioF();
    const QRectF seen = area & QRectF(QPointF(0, 0), QSizeF(size()) * ratio);
    if (seen.isEmpty()) return;
    const bool isFractional = ratio != std::floor(ratio);
    // There the canvas's corner may be up to half a pixel beside the device pixel it is drawn at.
    const double doubt = isFractional ? 1 : 0;
    update(QRectF((seen.x() - doubt) / ratio, (seen.y() - doubt) / ratio,
                  (seen.width() + 2 * doubt) / ratio, (seen.height() + 2 * doubt) / ratio)
               .toAlignedRect());
}

void CanvasView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const DevicePixels pixels(painter, QPointF(0, 0));
    picture_.prepare(document_, deviceScale(), toIntRect(pixels.touchedBy(event->rect())));
    const bool hasDesk = testAttribute(Qt::WA_OpaquePaintEvent);
    for (const QRect& exposed : event->region()) {
        if (hasDesk) painter.fillRect(exposed, palette().window());
        paintPicture(pixels, exposed);
    }
    if (document_.isEyeDropper)
        paintIcon(painter, Icon::eyedropper, eyeDropperPlace(),
                  withOpacity(semanticColor(SemanticColor::blue), eyeDropperOpacity));
    if (picture_.cachedBytes() > ScreenPicture::maxCachedBytes)
        picture_.limitMemory(toIntRect(pixels.touchedBy(visibleRegion().boundingRect())));
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

    picture_.paint(document_, deviceScale(), pixelsOf(frame, part.topLeft()));
    if (const auto outline = Overlay::of(document_).outline)
        paintOutline(frame, part.topLeft(), *outline);
    clipToRoundedRect(frame, part.topLeft(), size, cornerRadius * ratio);
    pixels.drawImage(part.topLeft(), frame);
}

/// `origin` is the frame's top left corner in device pixels of the canvas.
void CanvasView::paintOutline(QImage& frame, QPoint origin, const Outline& outline) const {
    const double scale = deviceScale();
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-origin);
    painter.scale(scale, scale);
    painter.setOpacity(outline.opacity);
    QPen pen(semanticColor(SemanticColor::blue), outlineWidth, Qt::CustomDashLine, Qt::FlatCap,
             Qt::MiterJoin);
    pen.setMiterLimit(10);
    // Dashes are counted in widths of the pen.
    pen.setDashPattern({outlineDash / outlineWidth, outlineGap / outlineWidth});
    painter.setPen(pen);
    const Rect& rect = outline.rect;
    painter.drawRoundedRect(QRectF(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height),
                            outlineRadius, outlineRadius);
}

QRectF CanvasView::eyeDropperPlace() const {
    const int side = iconSide(TypeStyle::largeTitle);
    QRectF place(0, 0, side, side);
    place.moveCenter(QRectF(rect()).center());
    return place;
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
    const bool isClick = drag_.release();
    dragEnded();
    if (isClick) clicked(position(*event));
}

void CanvasView::hideEvent(QHideEvent* event) {
    endInterruptedDrag();
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
    const Point p = canvasPoint(position);
    if (document_.isSelectTool) {
        // A drag moves what is selected, wherever it starts; it selects only when nothing is.
        if (!document_.selectedStrokeIndex->has_value()) document_.selectStroke(p);
        if (!document_.selectedStrokeIndex->has_value()) return;
        if (!document_.selectionDragStartPositions->has_value()) document_.beginSelectDrag();
        const QPointF way = drag_.translationTo(position) / document_.zoom;
        document_.updateSelectDrag({way.x(), way.y()});
    } else if (document_.isFillTool || document_.isEyeDropper) {
        return;
    } else if (document_.currentStroke->has_value()) {
        document_.addPointToStroke(p);
    } else {
        document_.beginStroke(p);
    }
}

void CanvasView::dragEnded() {
    if (document_.isSelectTool)
        document_.endSelectDrag();
    else if (!document_.isFillTool && !document_.isEyeDropper)
        document_.endStroke();
}

/// Another order than a drag's: whoever set several tools at once meets both.
void CanvasView::clicked(QPointF position) {
    const Point p = canvasPoint(position);
    if (document_.isFillTool) {
        const WaitPointer wait;
        document_.performFill(p);
    } else if (document_.isEyeDropper) {
        document_.pickColor(p);
    } else if (document_.isSelectTool) {
        document_.selectStroke(p);
    }
}

/// Ends a drag whose release does not come: what was drawn so far stays, and nothing was clicked.
void CanvasView::endInterruptedDrag() {
    if (!drag_.isActive()) return;
    drag_.release();
    dragEnded();
}

}  // namespace marlevo
