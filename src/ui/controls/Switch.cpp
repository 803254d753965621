#include "ui/controls/Switch.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace marlevo {

namespace {

// View points.
constexpr QSize trackSize(34, 20);
constexpr int knobMargin = 2;
constexpr int spacing = 8;

}  // namespace

Switch::Switch(const QString& label, QWidget* parent) : QCheckBox(label, parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize Switch::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + spacing + trackSize.width(),
            std::max(fontMetrics().height(), trackSize.height()) + 4};
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(semanticColor(SemanticColor::primary));
    painter.drawText(rect(), int(Qt::AlignLeading | Qt::AlignVCenter), text());

    const QRectF track = QStyle::alignedRect(
        layoutDirection(), Qt::AlignTrailing | Qt::AlignVCenter, trackSize, rect());
    const double radius = track.height() / 2;
    paintRoundedRect(painter, track, radius,
                     semanticColor(isChecked() ? SemanticColor::blue : SemanticColor::gray));

    const double side = track.height() - 2 * knobMargin;
    const bool isAtRight = isChecked() == (layoutDirection() == Qt::LeftToRight);
    const double left = isAtRight ? track.right() - knobMargin - side : track.left() + knobMargin;
    paintRoundedRect(painter, {left, track.top() + knobMargin, side, side}, side / 2, Qt::white);
    if (hasFocus()) paintFocusRing(painter, track, radius);
}

}  // namespace marlevo
