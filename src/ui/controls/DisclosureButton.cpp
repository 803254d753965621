#include "ui/controls/DisclosureButton.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace marlevo {

namespace {

// View points.
constexpr int gap = 4;
constexpr int leastHeight = 16;  // a line of small text alone is hard to hit
constexpr double focusRadius = 6;

constexpr double quarterTurn = 90;

int chevronRoom() { return iconSide(TypeStyle::caption2) + gap; }

}  // namespace

DisclosureButton::DisclosureButton(const QString& name, const QList<QWidget*>& header,
                                   QWidget* parent)
    : ToolButton(Look::custom, name, parent), row_(new QHBoxLayout(this)),
      roomForChevron_(new QSpacerItem(chevronRoom(), 0)) {
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(gap);
    row_->addSpacerItem(roomForChevron_);
    for (QWidget* part : header) {
        part->setAttribute(Qt::WA_TransparentForMouseEvents);
        row_->addWidget(part);
    }
    row_->addStretch(1);
}

void DisclosureButton::setOpen(bool open) {
    isOpen_ = open;
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void DisclosureButton::showOpening(double share) {
    opening_ = share;
    update();
}

QSize DisclosureButton::sizeHint() const { return row_->sizeHint().expandedTo({0, leastHeight}); }

int DisclosureButton::heightForWidth(int width) const {
    return std::max(leastHeight, row_->hasHeightForWidth() ? row_->heightForWidth(width)
                                                           : row_->sizeHint().height());
}

QSize DisclosureButton::minimumSizeHint() const {
    return row_->minimumSize().expandedTo({0, leastHeight});
}

void DisclosureButton::changeEvent(QEvent* event) {
    ToolButton::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    roomForChevron_->changeSize(chevronRoom(), 0);
    row_->invalidate();
}

void DisclosureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(opacity::disabled);
    const double side = iconSide(TypeStyle::caption2);
    const double middle = isRightToLeft() ? width() - side / 2 : side / 2;
    painter.save();
    painter.translate(middle, height() / 2.0);
    painter.rotate(isRightToLeft() ? 180 - quarterTurn * opening_ : quarterTurn * opening_);
    paintIcon(painter, Icon::chevronRight, {-side / 2, -side / 2, side, side},
              semanticColor(SemanticColor::tertiary));
    painter.restore();
    if (hasFocus()) paintFocusRing(painter, rect(), focusRadius);
}

}  // namespace marlevo
