#include "ui/controls/CheckBox.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int boxSide = 15;
constexpr double boxRadius = 3.5;
constexpr int gap = 6;

void paintCheckMark(QPainter& painter, const QRectF& box) {
    QPainterPath mark(box.topLeft() + QPointF(0.24, 0.53) * box.width());
    mark.lineTo(box.topLeft() + QPointF(0.43, 0.72) * box.width());
    mark.lineTo(box.topLeft() + QPointF(0.77, 0.29) * box.width());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(mark);
}

}  // namespace

CheckBox::CheckBox(const QString& label, std::optional<Icon> icon, QWidget* parent)
    : QCheckBox(label, parent), icon_(icon) {
    setAccessibleName(label);
    setFocusPolicy(Qt::TabFocus);
    setTypeStyle(*this, TypeStyle::callout);
    new ElidedToolTip(this, [this] { return width() < sizeHint().width() ? text() : QString(); });
}

void CheckBox::showChecked(bool checked) {
    const QSignalBlocker quiet(this);
    setChecked(checked);
}

int CheckBox::labelLeft() const {
    return focusRoom + boxSide + gap + (icon_ ? iconSide(TypeStyle::callout) + gap : 0);
}

QSize CheckBox::sizeHint() const {
    return {labelLeft() + fontMetrics().horizontalAdvance(text()) + 1 + focusRoom,
            std::max(fontMetrics().height(), boxSide) + 2 * focusRoom};
}

QSize CheckBox::minimumSizeHint() const {
    const int fewLetters = fontMetrics().horizontalAdvance(QStringLiteral("nn…"));
    return {std::min(sizeHint().width(), labelLeft() + fewLetters), sizeHint().height()};
}

void CheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    const auto mirrored = [this](const QRect& r) {
        return QStyle::visualRect(layoutDirection(), rect(), r);
    };
    const QColor gray = semanticColor(SemanticColor::gray);
    const QColor text = semanticColor(SemanticColor::primary);

    const QRectF box = mirrored({focusRoom, (height() - boxSide) / 2, boxSide, boxSide});
    if (isChecked()) {
        paintRoundedRect(painter, box, boxRadius, semanticColor(SemanticColor::blue));
        paintCheckMark(painter, box);
    } else {
        const double fill = isDown() ? 0.25 : underMouse() ? 0.12 : 0.06;
        paintRoundedRect(painter, box, boxRadius, withOpacity(gray, fill), {gray, 1});
    }

    if (icon_) {
        const int side = iconSide(TypeStyle::callout);
        const QRect place(focusRoom + boxSide + gap, (height() - side) / 2, side, side);
        paintIcon(painter, *icon_, mirrored(place), text);
    }

    const int left = labelLeft();
    const QRect place(left, 0, width() - left - focusRoom + 1, height());
    painter.setPen(text);
    painter.drawText(
        mirrored(place),
        int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
        fontMetrics().elidedText(this->text(), Qt::ElideRight, place.width()));
    if (hasFocus()) paintFocusRing(painter, rect(), boxRadius + focusRoom);
}

}  // namespace marlevo
