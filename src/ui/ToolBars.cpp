#include "ui/ToolBars.h"

#include "ui/ToolChoice.h"

#include <cmath>

namespace marlevo {

namespace {

// To the nearest: 0.29 × 100 is a little less than 29.
double percent(double share) { return std::round(share * 100); }

}  // namespace

DrawingToolBar::DrawingToolBar(DrawingDocument& document, QWidget* parent)
    : ControlRow(tr("Drawing"), document, parent) {
    using ShapeType = Stroke::ShapeType;
    const auto addShape = [this](const QString& name, ShapeType type) {
        addChoice(
            name, [type](const DrawingDocument& d) { return isShapeChosen(d, type); },
            [type](DrawingDocument& d) { chooseShape(d, type); });
    };

    addChoice(tr("Draw"), &DrawingDocument::isDrawingMode, chooseBrush);
    addChoice(
        tr("Eraser"), [](const DrawingDocument& d) { return d.isEraser.get(); }, chooseEraser);
    addShape(tr("Line"), ShapeType::line);
    addShape(tr("Rectangle"), ShapeType::rect);
    addShape(tr("Ellipse"), ShapeType::ellipse);
    addSeparator();
    addColorButton(
        tr("Color"), ColorButton::Opacity::fixed,
        [](const DrawingDocument& d) { return d.selectedColor.get(); },
        [](DrawingDocument& d, Color color) { d.selectedColor = color; });
    addSeparator();
    addSlider(
        tr("Size"), tr("px"), 1, 20, [](const DrawingDocument& d) { return d.lineWidth.get(); },
        [](DrawingDocument& d, double width) { d.lineWidth = width; });
    addSlider(
        tr("Opacity"), tr("%"), 10, 100,
        [](const DrawingDocument& d) { return percent(d.brushOpacity); },
        [](DrawingDocument& d, double value) { d.brushOpacity = value / 100; });
}

ViewToolBar::ViewToolBar(DrawingDocument& document, QWidget* parent)
    : ControlRow(tr("View"), document, parent) {
    addColorButton(
        tr("Background color"), ColorButton::Opacity::choosable,
        [](const DrawingDocument& d) { return d.backgroundColor.get(); },
        [](DrawingDocument& d, Color color) { d.backgroundColor = color; });
    addCheckBox(
        tr("Transparent background"),
        [](const DrawingDocument& d) { return d.backgroundIsTransparent.get(); },
        [](DrawingDocument& d, bool on) { d.backgroundIsTransparent = on; });
    addSeparator();
    addSlider(
        tr("Zoom"), tr("%"), 10, 500, [](const DrawingDocument& d) { return percent(d.zoom); },
        [](DrawingDocument& d, double value) { d.zoom = value / 100; });
    addButton(tr("100%"), [](DrawingDocument& d) { d.zoom = 1.0; });
}

}  // namespace marlevo
