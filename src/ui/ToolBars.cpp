#include "ui/ToolBars.h"

#include <cmath>

namespace marlevo {

namespace {

// To the nearest: 0.29 × 100 is a little less than 29.
double percent(double share) { return std::round(share * 100); }

}  // namespace

ViewToolBar::ViewToolBar(DrawingDocument& document, QWidget* parent)
    : ControlRow(tr("View"), document, parent) {
    addSlider(
        tr("Zoom"), tr("%"), 10, 500, [](const DrawingDocument& d) { return percent(d.zoom); },
        [](DrawingDocument& d, double value) { d.zoom = value / 100; });
    addButton(tr("100%"), [](DrawingDocument& d) { d.zoom = 1.0; });
}

}  // namespace marlevo
