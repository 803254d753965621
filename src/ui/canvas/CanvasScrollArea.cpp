#include "ui/canvas/CanvasScrollArea.h"

#include "model/DrawingDocument.h"
#include "ui/canvas/CanvasZoom.h"
#include "ui/controls/DropShadow.h"
#include "ui/controls/LastInput.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

constexpr int scrollStep = 20;
constexpr int ringWidth = 2;

static_assert(DropShadow::reach <= CanvasScrollArea::margin);

// In view points. A length that exceeds a whole number by less is not rounded up.
constexpr double tolerance = 1e-6;

int wholePoints(double length) { return static_cast<int>(std::ceil(length - tolerance)); }

QSize wholePoints(QSizeF size) { return {wholePoints(size.width()), wholePoints(size.height())}; }

/// The length to scroll over, for a canvas of this length. Includes margins only if the canvas does
/// not fit.
int contentLength(int length, int room) {
    return length <= room ? length : length + 2 * CanvasScrollArea::margin;
}

void setUpScrollBar(QScrollBar& bar, int length, int room) {
    bar.setRange(0, std::max(0, contentLength(length, room) - room));
    bar.setPageStep(room);
    bar.setSingleStep(scrollStep);
}

/// The start of `length`: centred if there is room, else at the scroll bar's position.
int start(int length, int room, const QScrollBar& bar) {
    return length <= room ? (room - length) / 2 : CanvasScrollArea::margin - bar.value();
}

}  // namespace

CanvasScrollArea::CanvasScrollArea(DrawingDocument& document, ImageCache& images, QWidget* parent)
    : QAbstractScrollArea(parent), document_(document), focusRing_(this),
      view_(document, images, viewport()),
      layoutFollower_(document.changeRegistry(), [this] { layOut(); }),
      descriptionChanges_(document, view_) {
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(true);
    setAccessibleName(tr("Drawing area"));
    view_.setFocusPolicy(Qt::StrongFocus);
    view_.installEventFilter(this);
    setFocusProxy(&view_);
    LastInput::instance();
    focusRing_.setBackgroundRole(QPalette::Highlight);
    focusRing_.setAutoFillBackground(true);
    focusRing_.setAttribute(Qt::WA_TransparentForMouseEvents);
    focusRing_.hide();
}

QSize CanvasScrollArea::sizeHint() const {
    const QSize canvas = wholePoints(displaySize(document_.canvasSize, document_.zoom));
    return canvas + QSize(2 * margin, 2 * margin);
}

void CanvasScrollArea::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
    focusRing_.setGeometry(rect());
    const QRect hole = rect().marginsRemoved({ringWidth, ringWidth, ringWidth, ringWidth});
    focusRing_.setMask(QRegion(rect()) - hole);
}

void CanvasScrollArea::moveEvent(QMoveEvent* event) {
    QAbstractScrollArea::moveEvent(event);
    layOut();
}

bool CanvasScrollArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &view_) followFocus(*event);
    return QAbstractScrollArea::eventFilter(watched, event);
}

void CanvasScrollArea::followFocus(const QEvent& event) {
    if (event.type() == QEvent::FocusOut) focusRing_.hide();
    if (event.type() == QEvent::KeyPress && LastInput::instance().wasKey()) setFocusVisible(true);
    if (event.type() != QEvent::FocusIn) return;
    switch (static_cast<const QFocusEvent&>(event).reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return setFocusVisible(isFocusVisible_);  // the focus returns
    default:
        return setFocusVisible(LastInput::instance().wasKey());
    }
}

void CanvasScrollArea::setFocusVisible(bool isVisible) {
    isFocusVisible_ = isVisible;
    focusRing_.setVisible(isVisible);
    focusRing_.raise();
}

void CanvasScrollArea::scrollContentsBy(int, int) { layOut(); }

void CanvasScrollArea::layOut() {
    const QSize canvas = wholePoints(displaySize(document_.canvasSize, document_.zoom));
    // The room that a bar takes must not be the only reason to show the bar.
    const QSize most = maximumViewportSize();
    const bool fits = canvas.width() <= most.width() && canvas.height() <= most.height();
    // Each range may show or hide a bar, which changes the viewport.
    setUpScrollBar(*horizontalScrollBar(), canvas.width(),
                   (fits ? most : viewport()->size()).width());
    setUpScrollBar(*verticalScrollBar(), canvas.height(),
                   (fits ? most : viewport()->size()).height());

    const QSize room = viewport()->size();
    const QPoint corner(start(canvas.width(), room.width(), *horizontalScrollBar()),
                        start(canvas.height(), room.height(), *verticalScrollBar()));
    const QRect place(alignedToDevicePixels(corner), canvas);
    if (place == view_.geometry()) return;
    view_.setGeometry(place);
    viewport()->update();
}

/// At a fractional scale factor only every second or fourth point is on a device pixel. The canvas
/// is placed at such a point, up to three points further left or up, so that the picture is sharp
/// and the pointer reaches the pixel under it. A canvas that fits is placed further right or down
/// where it would be cut.
QPoint CanvasScrollArea::alignedToDevicePixels(QPoint viewportPosition) const {
    const double ratio = devicePixelRatioF();
    const QPoint inWindow = viewport()->mapTo(window(), viewportPosition);
    for (int step = 1; step <= 4; ++step) {
        if (step * ratio != std::floor(step * ratio)) continue;
        QPoint aligned = viewportPosition - QPoint(inWindow.x() % step, inWindow.y() % step);
        if (viewportPosition.x() >= 0 && aligned.x() < 0) aligned.rx() += step;
        if (viewportPosition.y() >= 0 && aligned.y() < 0) aligned.ry() += step;
        return aligned;
    }
    return viewportPosition;
}

void CanvasScrollArea::paintEvent(QPaintEvent* event) {
    if (view_.geometry().isEmpty() || view_.geometry().contains(event->rect())) return;
    QPainter painter(viewport());
    const QRectF canvas(view_.pos(), displaySize(document_.canvasSize, document_.zoom));
    DropShadow::paint(painter, canvas, event->rect());
}

}  // namespace marlevo
