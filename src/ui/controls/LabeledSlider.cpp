#include "ui/controls/LabeledSlider.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace marlevo {

namespace {

constexpr int spacing = 3;

}  // namespace

LabeledSlider::LabeledSlider(const QString& label, ContinuousSlider::Range range, Display display,
                             QWidget* parent)
    : QWidget(parent), display_(std::move(display)),
      // The first child, so that a search for the name finds the slider before its label.
      slider_(label, range, this), label_(label, textlook::caption),
      value_({}, textlook::captionNumber) {
    auto* texts = new QHBoxLayout;
    texts->addWidget(&label_, 1);
    texts->addWidget(&value_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addLayout(texts);
    column->addWidget(&slider_);
    connect(&slider_, &ContinuousSlider::moved, this, &LabeledSlider::moved);
}

void LabeledSlider::showValue(double value) {
    const QString inWords = display_(value);
    value_.setText(inWords);
    slider_.showValue(value, inWords);
}

}  // namespace marlevo
