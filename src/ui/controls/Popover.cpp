#include "ui/controls/Popover.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/LastInput.h"
#include "ui/controls/SemanticColors.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QPainterPath>
#include <QWindow>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int arrowLength = 9;
constexpr int halfArrowWidth = 9;
constexpr int shadowReach = 7;
constexpr int arrowDepth = 24;  // below the body's top, where there is room for it
constexpr double radius = 8;

QPainterPath outline(const QRectF& body, double arrowTip, bool arrowOnTheRight) {
    QPainterPath path;
    path.addRoundedRect(body, radius, radius);
    const double base = arrowOnTheRight ? body.right() : body.left();
    const double tip = arrowOnTheRight ? base + arrowLength : base - arrowLength;
    QPainterPath arrow(QPointF(base, arrowTip - halfArrowWidth));
    arrow.lineTo(tip, arrowTip);
    arrow.lineTo(base, arrowTip + halfArrowWidth);
    arrow.closeSubpath();
    return path.united(arrow);
}

bool isPress(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
           type == QEvent::TouchBegin || type == QEvent::TabletPress;
}

}  // namespace

Popover::Popover(QWidget& anchor) : QWidget(anchor.window()), anchor_(&anchor) {
    hide();
    setLayoutDirection(anchor.layoutDirection());
    setContentsMargins(shadowReach + (isRightToLeft() ? 0 : arrowLength), shadowReach,
                       shadowReach + (isRightToLeft() ? arrowLength : 0), shadowReach);
}

void Popover::open() {
    focusedBefore_ = QApplication::focusWidget();
    place();
    show();
    raise();
    if (LastInput::instance().wasKey())
        focusNextPrevChild(true);
    else
        setFocus(Qt::PopupFocusReason);
    window()->installEventFilter(this);
    qApp->installEventFilter(this);
}

void Popover::dismiss() {
    if (!isVisible()) return;
    qApp->removeEventFilter(this);
    window()->removeEventFilter(this);
    const bool hadFocus = isAncestorOf(QApplication::focusWidget()) || hasFocus();
    hide();
    if (hadFocus && focusedBefore_) focusedBefore_->setFocus(Qt::PopupFocusReason);
    deleteLater();
}

void Popover::place() {
    if (!anchor_) return;
    const QSize size = sizeHint();
    const QRect anchor(anchor_->mapTo(window(), QPoint()), anchor_->size());
    const int left = isRightToLeft() ? anchor.left() - size.width() + shadowReach
                                     : anchor.right() + 1 - shadowReach;
    const int leastTop = -shadowReach + 2;
    const int top = std::clamp(anchor.center().y() - shadowReach - arrowDepth, leastTop,
                               std::max(leastTop, window()->height() - size.height()));
    setGeometry({{left, top}, size});
    arrowTip_ = anchor.center().y() + 0.5 - top;
    update();
}

QRectF Popover::body() const { return QRectF(rect()).marginsRemoved(contentsMargins()); }

void Popover::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = outline(body(), arrowTip_, isRightToLeft());
    paintShadow(painter, path, shadowReach, opacity::popoverShadow);
    painter.setPen(QPen(semanticColor(SemanticColor::separator), 2));
    painter.drawPath(path);
    painter.fillPath(path, semanticColor(SemanticColor::windowBackground));
}

void Popover::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        return dismiss();
    case Qt::Key_Down:
        focusNextPrevChild(true);
        return;
    case Qt::Key_Up:
        focusNextPrevChild(false);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool Popover::event(QEvent* event) {
    // Escape closes the popover, also where the window has a shortcut for it.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool Popover::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window() && event->type() == QEvent::Resize) place();
    if (watched == window() && event->type() == QEvent::WindowDeactivate) dismiss();
    if (isPress(event->type()) && watched == window()->windowHandle())
        return takePress(static_cast<QPointerEvent&>(*event));
    if (event->type() != QEvent::FocusIn) return false;
    const auto* reached = qobject_cast<QWidget*>(watched);
    if (reached == nullptr || reached == this || isAncestorOf(reached)) return false;
    dismiss();
    return false;
}

/// True if the press is outside. It is filtered at the window, so that it does not move the focus.
bool Popover::takePress(QPointerEvent& press) {
    const QPointF place = press.points().first().scenePosition();
    if (geometry().contains(place.toPoint())) return false;
    dismiss();
    // Otherwise the toolkit synthesises a mouse press from an ignored touch or pen press.
    press.accept();
    return true;
}

// Tab cycles through the controls of the popover.
bool Popover::focusNextPrevChild(bool next) {
    QList<QWidget*> stops;
    for (QWidget* child : findChildren<QWidget*>())
        if (child->isVisible() && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus))
            stops << child;
    if (stops.isEmpty()) return true;
    const qsizetype now = stops.indexOf(QApplication::focusWidget());
    const qsizetype from = now < 0 && !next ? 0 : now;
    stops[(from + (next ? 1 : -1) + stops.size()) % stops.size()]->setFocus(Qt::TabFocusReason);
    return true;
}

}  // namespace marlevo
