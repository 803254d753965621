#include "ui/controls/ContinuousSlider.h"

#include "ui/controls/ControlAccessibility.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/TypeScale.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

constexpr int regularKnob = 16;
constexpr int smallKnob = 13;
constexpr int comfortableWidth = 120;
constexpr int leastWidth = 48;
constexpr int pageSteps = 10;

/// QSlider counts in whole numbers: this many for a step of the keys.
constexpr double unitsOfKeyStep = 1000;

int toUnits(double value, const ContinuousSlider::Range& range) {
    const double inRange = std::clamp(value, range.least, range.most);
    return static_cast<int>(std::lround(inRange / range.keyStep * unitsOfKeyStep));
}

}  // namespace

ContinuousSlider::ContinuousSlider(const QString& name, Range range, QWidget* parent, Knob knob)
    : QSlider(Qt::Horizontal, parent), range_(range),
      knobSize_(knob == Knob::small ? smallKnob : regularKnob), realValue_(range.least) {
    installControlAccessibility();
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setRange(toUnits(range.least, range), toUnits(range.most, range));
    connect(this, &QSlider::actionTriggered, this, &ContinuousSlider::performAction);
}

void ContinuousSlider::showValue(double value, const QString& inWords) {
    if (value == realValue_ && inWords == inWords_) return;
    realValue_ = value;
    inWords_ = inWords;
    const QSignalBlocker quiet(this);
    setValue(toUnits(value, range_));
    update();
    QAccessibleValueChangeEvent event(this, value);
    QAccessible::updateAccessibility(&event);
}

void ContinuousSlider::moveTo(double value) {
    Q_EMIT moved(std::clamp(value, range_.least, range_.most));
}

int ContinuousSlider::knobSize() const { return grownWithText(knobSize_); }

QSize ContinuousSlider::sizeHint() const { return {comfortableWidth, knobSize() + 2}; }

QSize ContinuousSlider::minimumSizeHint() const { return {leastWidth, knobSize() + 2}; }

double ContinuousSlider::knobCenter() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return sliderKnobCenter(option, knobSize());
}

double ContinuousSlider::valueAt(double x) const {
    const double forward =
        std::clamp((x - knobSize() / 2.0) / std::max(width() - knobSize(), 1), 0.0, 1.0);
    const double share = isRightToLeft() ? 1 - forward : forward;
    return range_.least + share * (range_.most - range_.least);
}

// Multiples of the step, because sums of rounded steps would show 89 % for 90 %.
double ContinuousSlider::afterSteps(double count) const {
    constexpr double tolerance = 1e-6;
    const double steps = realValue_ / range_.keyStep;
    const double whole = count > 0 ? std::floor(steps + tolerance) : std::ceil(steps - tolerance);
    return (whole + count) * range_.keyStep;
}

void ContinuousSlider::performAction(int action) {
    switch (action) {
    case SliderSingleStepAdd:
        moveTo(afterSteps(1));
        break;
    case SliderSingleStepSub:
        moveTo(afterSteps(-1));
        break;
    case SliderPageStepAdd:
        moveTo(afterSteps(pageSteps));
        break;
    case SliderPageStepSub:
        moveTo(afterSteps(-pageSteps));
        break;
    case SliderToMinimum:
        moveTo(range_.least);
        break;
    case SliderToMaximum:
        moveTo(range_.most);
        break;
    default:
        break;
    }
    // QSlider has moved the knob by a step of its own. The value shown last holds.
    const QSignalBlocker quiet(this);
    setSliderPosition(toUnits(realValue_, range_));
}

// QSlider would move the knob's centre to the pointer and round to whole points.
void ContinuousSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    const double x = event->position().x();
    const double toKnob = knobCenter() - x;
    setSliderDown(true);
    grabOffset_ = std::abs(toKnob) <= knobSize() / 2.0 ? toKnob : 0;
    update();
    if (grabOffset_ == 0 && toKnob != 0) moveTo(valueAt(x));
}

void ContinuousSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) moveTo(valueAt(event->position().x() + grabOffset_));
}

void ContinuousSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    setSliderDown(false);
    update();
}

void ContinuousSlider::keyPressEvent(QKeyEvent* event) {
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return event->ignore();
    QSlider::keyPressEvent(event);
}

void ContinuousSlider::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace marlevo
