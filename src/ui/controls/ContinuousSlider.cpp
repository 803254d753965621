#include "ui/controls/ContinuousSlider.h"

#include "ui/controls/ControlAccessibility.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

constexpr int regularKnob = 16;
constexpr int smallKnob = 13;
constexpr int trackHeight = 4;
constexpr int comfortableWidth = 120;
constexpr int leastWidth = 48;
constexpr int pageSteps = 10;

}  // namespace

ContinuousSlider::ContinuousSlider(const QString& name, Range range, QWidget* parent, Knob knob)
    : QWidget(parent), range_(range), knobSize_(knob == Knob::small ? smallKnob : regularKnob),
      value_(range.least) {
    installControlAccessibility();
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ContinuousSlider::showValue(double value, const QString& inWords) {
    if (value == value_ && inWords == inWords_) return;
    value_ = value;
    inWords_ = inWords;
    update();
    QAccessibleValueChangeEvent event(this, value);
    QAccessible::updateAccessibility(&event);
}

void ContinuousSlider::moveTo(double value) {
    Q_EMIT moved(std::clamp(value, range_.least, range_.most));
}

QSize ContinuousSlider::sizeHint() const { return {comfortableWidth, knobSize_ + 2}; }

QSize ContinuousSlider::minimumSizeHint() const { return {leastWidth, knobSize_ + 2}; }

double ContinuousSlider::knobCenter() const {
    const double share =
        std::clamp((value_ - range_.least) / (range_.most - range_.least), 0.0, 1.0);
    const double forward = isRightToLeft() ? 1 - share : share;
    return knobSize_ / 2.0 + forward * (width() - knobSize_);
}

double ContinuousSlider::valueAt(double x) const {
    const double forward =
        std::clamp((x - knobSize_ / 2.0) / std::max(width() - knobSize_, 1), 0.0, 1.0);
    const double share = isRightToLeft() ? 1 - forward : forward;
    return range_.least + share * (range_.most - range_.least);
}

// On multiples of the step, or sums of rounded steps would show 89 % for 90 %.
double ContinuousSlider::afterSteps(double count) const {
    constexpr double tolerance = 1e-6;
    const double steps = value_ / range_.keyStep;
    const double whole = count > 0 ? std::floor(steps + tolerance) : std::ceil(steps - tolerance);
    return (whole + count) * range_.keyStep;
}

void ContinuousSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);

    const double middle = height() / 2.0;
    const QRectF track(1, middle - trackHeight / 2.0, width() - 2, trackHeight);
    const double knob = knobCenter();
    QRectF filled = track;
    if (isRightToLeft())
        filled.setLeft(knob);
    else
        filled.setRight(knob);
    const auto gray = semanticColor(SemanticColor::gray);
    const auto blue = semanticColor(SemanticColor::blue);
    paintRoundedRect(painter, track, trackHeight / 2.0, withOpacity(gray, 0.35));
    paintRoundedRect(painter, filled, trackHeight / 2.0, blue);

    const QRectF disc(knob - knobSize_ / 2.0 + 1, middle - knobSize_ / 2.0 + 1, knobSize_ - 2,
                      knobSize_ - 2);
    const bool ringed = hasFocus() || isGrabbed_;
    paintRoundedRect(painter, disc, disc.width() / 2, isGrabbed_ ? QColor(0xe8e8ec) : Qt::white,
                     {ringed ? blue : gray, ringed ? 2.0 : 1.0});
}

void ContinuousSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    const double x = event->position().x();
    const double toKnob = knobCenter() - x;
    isGrabbed_ = true;
    grabOffset_ = std::abs(toKnob) <= knobSize_ / 2.0 ? toKnob : 0;
    update();
    if (grabOffset_ == 0 && toKnob != 0) moveTo(valueAt(x));
}

void ContinuousSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isGrabbed_) moveTo(valueAt(event->position().x() + grabOffset_));
}

void ContinuousSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    isGrabbed_ = false;
    update();
}

void ContinuousSlider::keyPressEvent(QKeyEvent* event) {
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return event->ignore();
    const double forward = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Right:
        return moveTo(afterSteps(forward));
    case Qt::Key_Left:
        return moveTo(afterSteps(-forward));
    case Qt::Key_Up:
        return moveTo(afterSteps(1));
    case Qt::Key_Down:
        return moveTo(afterSteps(-1));
    case Qt::Key_PageUp:
        return moveTo(afterSteps(pageSteps));
    case Qt::Key_PageDown:
        return moveTo(afterSteps(-pageSteps));
    case Qt::Key_Home:
        return moveTo(range_.least);
    case Qt::Key_End:
        return moveTo(range_.most);
    default:
        event->ignore();
    }
}

}  // namespace marlevo
