#include "model/DrawingDocument.h"

#include <optional>
#include <utility>

namespace marlevo {

namespace {

constexpr double eraserWidthFactor = 8.0;

}  // namespace

void DrawingDocument::beginStroke(Point at) {
    ensureLayers();
    saveState();

    Stroke stroke;
    stroke.points = {at};
    stroke.color = *selectedColor;
    stroke.lineWidth = *lineWidth;
    stroke.opacity = *brushOpacity;
    if (*isShapeTool) {
        stroke.points = {at, at};
        stroke.shapeType = *currentShapeType;
    } else if (*isEraser) {
        stroke.color = *backgroundColor;
        stroke.lineWidth = *lineWidth * eraserWidthFactor;
        stroke.opacity = 1.0;
        stroke.isEraser = true;
    }
    currentStroke = std::move(stroke);
}

void DrawingDocument::addPointToStroke(Point point) {
    if (!*currentStroke) return;
    if (*isShapeTool && !(*currentStroke)->points.isEmpty()) {
        Stroke stroke = **currentStroke;
        stroke.points = {stroke.points[0], point};
        currentStroke = std::move(stroke);
        return;
    }
    currentStroke.modify([&](std::optional<Stroke>& stroke) { stroke->points.append(point); });
}

void DrawingDocument::endStroke() {
    if (*currentStroke && (*currentStroke)->points.size() >= 2 && activeLayer()) {
        layers.modify(
            [&](LayerList& all) { all[*activeLayerIndex].strokes.append(**currentStroke); });
    }
    currentStroke = std::nullopt;
}

}  // namespace marlevo
