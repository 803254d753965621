#include "tools/StrokeCapture.h"

#include "model/DrawingDocument.h"

#include <optional>
#include <utility>

namespace marlevo {

namespace {

constexpr double eraserWidthFactor = 8.0;

}  // namespace

void beginStroke(DrawingDocument& document, Point at) {
    document.ensureLayers();
    document.saveState();

    Stroke stroke;
    stroke.points = {at};
    stroke.color = *document.selectedColor;
    stroke.lineWidth = *document.lineWidth;
    stroke.opacity = *document.brushOpacity;
    if (*document.isShapeTool) {
        stroke.points = {at, at};
        stroke.shapeType = *document.currentShapeType;
    } else if (*document.isEraser) {
        stroke.color = *document.backgroundColor;
        stroke.lineWidth = *document.lineWidth * eraserWidthFactor;
        stroke.opacity = 1.0;
        stroke.isEraser = true;
    }
    document.currentStroke = std::move(stroke);
}

void addPointToStroke(DrawingDocument& document, Point point) {
    auto& current = document.currentStroke;
    if (!*current) return;
    if (*document.isShapeTool && !(*current)->points.isEmpty()) {
        Stroke stroke = **current;
        stroke.points = {stroke.points[0], point};
        current = std::move(stroke);
        return;
    }
    current.modifyAndPublish([&](std::optional<Stroke>& stroke) { stroke->points.append(point); });
}

void endStroke(DrawingDocument& document) {
    const auto& current = document.currentStroke;
    if (*current && (*current)->points.size() >= 2 && document.activeLayer()) {
        document.layers.modifyAndPublish(
            [&](LayerList& all) { all[*document.activeLayerIndex].strokes.append(**current); });
    }
    document.currentStroke = std::nullopt;
}

}  // namespace marlevo
