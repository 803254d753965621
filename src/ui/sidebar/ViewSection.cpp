#include "ui/sidebar/ViewSection.h"

#include "model/DrawingDocument.h"
#include "ui/controls/WrapText.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace marlevo {

namespace {

constexpr int topPadding = 6;
constexpr int spacing = 10;
constexpr int rowSpacing = 8;
constexpr int wellWidth = 22;

}  // namespace

ViewSection::ViewSection(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document), grid_(tr("Grid"), Icon::grid),
      background_(withoutSoftHyphens(tr("Background color")), ColorWell::Opacity::choosable,
                  wellWidth),
      backgroundLabel_(tr("Background color"), {TypeStyle::callout}),
      transparent_(tr("Transparent background")),
      gridFollower_(document.changeRegistry(), [this] { grid_.showChecked(document_.showGrid); }),
      backgroundFollower_(document.changeRegistry(),
                          [this] { background_.showColor(document_.backgroundColor); }),
      transparentFollower_(document.changeRegistry(), [this] {
          transparent_.showChecked(document_.backgroundIsTransparent);
      }) {
    backgroundLabel_.setWordWrap(true);
    auto* color = new QHBoxLayout;
    color->setSpacing(rowSpacing);
    color->addWidget(&background_);
    color->addWidget(&backgroundLabel_, 1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, topPadding, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(&grid_, 0, Qt::AlignHCenter);
    column->addLayout(color);
    column->addWidget(&transparent_, 0, Qt::AlignHCenter);

    connect(&grid_, &CheckBox::toggled, this, [this](bool on) { document_.showGrid = on; });
    connect(&background_, &ColorWell::colorChosen, this,
            [this](const Color& chosen) { document_.backgroundColor = chosen; });
    connect(&transparent_, &CheckBox::toggled, this,
            [this](bool on) { document_.backgroundIsTransparent = on; });
}

}  // namespace marlevo
