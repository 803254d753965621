#include "ui/controls/LabeledSlider.h"

#include "ui/controls/FlowLayout.h"

#include <QVBoxLayout>

#include <utility>

namespace marlevo {

namespace {

constexpr int spacing = 3;
constexpr int textSpacing = 6;

}  // namespace

LabeledSlider::LabeledSlider(const QString& label, ContinuousSlider::Range range, Display display,
                             QWidget* parent)
    : QWidget(parent), display_(std::move(display)),
      // The first child, so that a search for the name finds the slider before its label.
      slider_(label, range, this), label_(label, textlook::caption),
      value_({}, textlook::captionNumber) {
    auto* texts = new QWidget;
    auto* line = new FlowLayout(FlowLayout::Fill::ends, textSpacing, texts);
    for (TextLabel* const text : {&label_, &value_}) {
        text->setWordWrap(true);
        // Both are whole in one line, or else one below the other.
        QSizePolicy policy = text->sizePolicy();
        policy.setHorizontalPolicy(QSizePolicy::Fixed);
        text->setSizePolicy(policy);
        line->addWidget(text);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(texts);
    column->addWidget(&slider_);
    connect(&slider_, &ContinuousSlider::moved, this, &LabeledSlider::moved);
}

void LabeledSlider::showValue(double value) {
    const QString inWords = display_(value);
    value_.setText(inWords);
    slider_.showValue(value, inWords);
}

}  // namespace marlevo
