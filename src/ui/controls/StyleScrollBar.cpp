#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int knobMargin = 2;  // view points

}  // namespace

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& bar) {
    painter.fillRect(bar.rect, bar.palette.window());
    if (bar.maximum <= bar.minimum) return;
    const QRect knob = scrollBarPart(bar, QStyle::SC_ScrollBarSlider);
    const bool isActive = bar.state.testFlag(QStyle::State_MouseOver) ||
                          bar.activeSubControls == QStyle::SC_ScrollBarSlider;
    const QRectF inside = QRectF(knob).adjusted(knobMargin, knobMargin, -knobMargin, -knobMargin);
    paintRoundedRect(painter, inside, std::min(inside.width(), inside.height()) / 2,
                     withOpacity(semanticColor(SemanticColor::gray),
                                 isActive ? opacity::scrollKnobHovered : opacity::scrollKnob));
}

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool isHorizontal = bar.orientation == Qt::Horizontal;
    const int length = isHorizontal ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    const int share =
        int(qint64(length) * bar.pageStep / std::max<qint64>(range + bar.pageStep, 1));
    const int knob =
        range > 0 ? std::clamp(share, std::min(leastKnobLength, length), length) : length;
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - knob, bar.upsideDown);
    const auto stretch = [&](int from, int to) {
        const QRect place = isHorizontal ? QRect(from, 0, to - from, bar.rect.height())
                                         : QRect(0, from, bar.rect.width(), to - from);
        return QStyle::visualRect(bar.direction, bar.rect, place.translated(bar.rect.topLeft()));
    };
    switch (part) {
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, start + knob);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + knob, length);
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    default:
        return {};
    }
}

}  // namespace marlevo
