#include "ui/sidebar/ColorRow.h"

#include "model/DrawingDocument.h"
#include "ui/controls/AppearanceNotifier.h"
#include "ui/controls/Colors.h"
#include "ui/controls/FlowLayout.h"
#include "ui/sidebar/QuickColors.h"

namespace marlevo {

namespace {

constexpr int spacing = 8;
constexpr int swatchSpacing = 2;  // the swatches have a point of room on each side
constexpr int wellWidth = 24;

}  // namespace

ColorRow::ColorRow(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document),
      well_(tr("Color"), ColorWell::Opacity::fixed, wellWidth),
      colorFollower_(document.changeRegistry(), [this] { showColor(); }),
      swatchesFollower_(document.changeRegistry(), [this] { showSwatches(); }) {
    auto* row = new FlowLayout(FlowLayout::Fill::ends, spacing, this);
    row->addLayout(groupOf({&circle_, &well_}, spacing));
    row->addLayout(makeSwatches());
    swatchesFollower_.refresh();
    connect(&AppearanceNotifier::instance(), &AppearanceNotifier::paletteChanged, this,
            [this] { swatchesFollower_.refresh(); });
    connect(&well_, &ColorWell::colorChosen, this,
            [this](const Color& color) { document_.selectedColor = color; });
}

QLayout* ColorRow::makeSwatches() {
    auto* swatches = new FlowLayout(FlowLayout::Fill::none, swatchSpacing);
    // The gaps shrink in a narrow sidebar before the swatches take a line of their own.
    swatches->setLeastSpacing(0);
    for (const QuickColor& quick : quickColors()) {
        auto* swatch = new ColorSwatch(quick.name, quick.color);
        connect(swatch, &ColorSwatch::chosen, this, [this, swatch] { choose(swatch->color()); });
        swatches_.push_back(swatch);
        swatches->addWidget(swatch);
    }
    swatchFocus_.setMembers({swatches_.begin(), swatches_.end()});
    return swatches;
}

void ColorRow::choose(const Color& color) {
    document_.selectedColor = color;
    document_.isEraser = false;
    document_.isFillTool = false;
}

void ColorRow::showColor() {
    circle_.showColor(toQColor(document_.selectedColor));
    well_.showColor(document_.selectedColor);
    well_.setEnabled(!document_.isEraser && !document_.isFillTool);
}

void ColorRow::showSwatches() {
    using enum ColorSwatch::Selection;
    const Color selected = document_.selectedColor;
    const bool erases = document_.isEraser;
    const bool fills = document_.isFillTool;
    for (ColorSwatch* swatch : swatches_) {
        const bool isSelected = swatch->color() == selected && !erases;
        swatch->setSelection(!isSelected ? none : fills ? sameColor : active);
    }
}

}  // namespace marlevo
