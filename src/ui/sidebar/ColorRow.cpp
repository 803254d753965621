#include "ui/sidebar/ColorRow.h"

#include "model/DrawingDocument.h"
#include "ui/controls/AppearanceNotifier.h"
#include "ui/controls/Colors.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/sidebar/QuickColors.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>

namespace marlevo {

namespace {

constexpr int spacing = 8;
constexpr int swatchSpacing = 2;  // the swatches have a point of room on each side
constexpr int circle = 18;
constexpr int wellWidth = 24;

}  // namespace

ColorRow::ColorRow(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document),
      well_(tr("Color"), ColorWell::Opacity::fixed, wellWidth),
      colorFollower_(document.changeRegistry(), [this] { showColor(); }),
      swatchesFollower_(document.changeRegistry(), [this] { showSwatches(); }) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(circle + spacing);
    row->addWidget(&well_);
    row->addSpacing(spacing);
    row->addStretch(1);
    addSwatches(*row);
    swatchesFollower_.refresh();
    connect(&AppearanceNotifier::instance(), &AppearanceNotifier::paletteChanged, this,
            [this] { swatchesFollower_.refresh(); });
    connect(&well_, &ColorWell::colorChosen, this,
            [this](const Color& color) { document_.selectedColor = color; });
}

void ColorRow::addSwatches(QHBoxLayout& row) {
    auto* strip = new QHBoxLayout;
    strip->setSpacing(0);
    for (const QuickColor& quick : quickColors()) {
        auto* swatch = new ColorSwatch(quick.name, quick.color);
        connect(swatch, &ColorSwatch::chosen, this, [this, swatch] { choose(swatch->color()); });
        // The gaps give way in a narrow sidebar.
        if (!swatches_.empty())
            strip->addSpacerItem(new QSpacerItem(swatchSpacing, 0, QSizePolicy::Maximum));
        swatches_.push_back(swatch);
        strip->addWidget(swatch);
    }
    swatchFocus_.setMembers({swatches_.begin(), swatches_.end()});
    row.addLayout(strip);
}

void ColorRow::choose(const Color& color) {
    document_.selectedColor = color;
    document_.isEraser = false;
    document_.isFillTool = false;
}

void ColorRow::showColor() {
    well_.showColor(document_.selectedColor);
    well_.setEnabled(!document_.isEraser && !document_.isFillTool);
    update();
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

void ColorRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect place(0, (height() - circle) / 2, circle, circle);
    paintRoundedRect(painter, QStyle::visualRect(layoutDirection(), rect(), place), circle / 2.0,
                     toQColor(document_.selectedColor),
                     {semanticColor(SemanticColor::separator), 1});
}

}  // namespace marlevo
