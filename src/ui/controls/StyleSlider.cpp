#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int trackHeight = 4;

}  // namespace

double sliderKnobCenter(const QStyleOptionSlider& slider, int knobSize) {
    const double range = std::max(slider.maximum - slider.minimum, 1);
    const double share = (slider.sliderPosition - slider.minimum) / range;
    const double forward = slider.upsideDown ? 1 - share : share;
    return slider.rect.left() + knobSize / 2.0 + forward * (slider.rect.width() - knobSize);
}

void paintSlider(QPainter& painter, const QStyleOptionSlider& option,
                 const ContinuousSlider& slider) {
    const ControlState state(option);
    const bool isHeld = slider.isSliderDown();
    const int knobSize = slider.knobSize();
    painter.save();
    if (!state.isEnabled) painter.setOpacity(opacity::disabled);
    const QRectF area = option.rect;
    const double middle = area.center().y();
    const QRectF track(area.left() + 1, middle - trackHeight / 2.0, area.width() - 2, trackHeight);
    const double knob = sliderKnobCenter(option, knobSize);
    QRectF filled = track;
    if (option.upsideDown)
        filled.setLeft(knob);
    else
        filled.setRight(knob);
    const QColor gray = semanticColor(SemanticColor::gray);
    const QColor blue = semanticColor(SemanticColor::blue);
    paintRoundedRect(painter, track, trackHeight / 2.0, withOpacity(gray, opacity::outline));
    paintRoundedRect(painter, filled, trackHeight / 2.0, blue);

    const QRectF disc(knob - knobSize / 2.0 + 1, middle - knobSize / 2.0 + 1, knobSize - 2,
                      knobSize - 2);
    const bool isRinged = isHeld || state.hasFocus;
    paintRoundedRect(painter, disc, disc.width() / 2, isHeld ? QColor(0xe8e8ec) : Qt::white,
                     {isRinged ? blue : gray, isRinged ? 2.0 : 1.0});
    painter.restore();
}

}  // namespace marlevo
