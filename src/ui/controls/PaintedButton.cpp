#include "ui/controls/PaintedButton.h"

#include "ui/controls/ControlAccessibility.h"
#include "ui/controls/ControlPainting.h"

#include <QPainter>

namespace marlevo {

PaintedButton::PaintedButton(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    installControlAccessibility();
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
}

void PaintedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    paintContents(painter);
    if (hasFocus()) paintFocusRing(painter, rect(), focusRadius());
}

void PaintedButton::enterEvent(QEnterEvent* event) {
    update();
    QAbstractButton::enterEvent(event);
}

void PaintedButton::leaveEvent(QEvent* event) {
    update();
    QAbstractButton::leaveEvent(event);
}

}  // namespace marlevo
