#include "tools/Selection.h"

#include "model/DrawingDocument.h"
#include "tools/HitTest.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace marlevo {

namespace {

/// The greatest distance from a click to a stroke, in view points at any zoom.
constexpr double hitTolerance = 10;

/// The distance of the outline from the selected stroke's points, in canvas pixels at any zoom.
constexpr double outlineMargin = 6;

struct StrokePlace {
    std::size_t layer;
    std::size_t stroke;
};

std::optional<StrokePlace> selectedPlace(const DrawingDocument& document) {
    const std::optional<Uuid>& layerID = document.selectedLayerID;
    const std::optional<std::int64_t>& strokeIndex = document.selectedStrokeIndex;
    if (!layerID || !strokeIndex || *strokeIndex < 0) return std::nullopt;
    const LayerList& all = document.layers;
    const auto layer = std::ranges::find(all, *layerID, &Layer::id);
    const auto index = static_cast<std::size_t>(*strokeIndex);
    if (layer == all.end() || index >= layer->strokes.size()) return std::nullopt;
    return StrokePlace{static_cast<std::size_t>(std::distance(all.begin(), layer)), index};
}

const Stroke& strokeAt(const LayerList& layers, const StrokePlace& place) {
    return layers[place.layer].strokes[place.stroke];
}

}  // namespace

void selectStroke(DrawingDocument& document, Point at) {
    const double tolerance = hitTolerance / document.zoom;
    const LayerList& all = document.layers;
    for (auto layer = all.rbegin(); layer != all.rend(); ++layer) {
        if (!layer->isVisible) continue;
        if (const auto index = firstHit(layer->strokes, at, tolerance)) {
            document.selectedLayerID = layer->id;
            document.selectedStrokeIndex = static_cast<std::int64_t>(*index);
            return;
        }
    }
    document.clearSelection();
}

const Stroke* selectedStroke(const DrawingDocument& document) {
    const auto place = selectedPlace(document);
    return place ? &strokeAt(document.layers, *place) : nullptr;
}

std::optional<Rect> selectedStrokeBoundingRect(const DrawingDocument& document) {
    const Stroke* const stroke = selectedStroke(document);
    if (stroke == nullptr) return std::nullopt;
    return stroke->boundingRect().grownBy(outlineMargin);
}

void beginSelectDrag(DrawingDocument& document) {
    const auto place = selectedPlace(document);
    if (!place) return;
    document.saveState();
    document.selectionDragStartPositions = strokeAt(document.layers, *place).points;
}

void updateSelectDrag(DrawingDocument& document, Size translation) {
    const auto place = selectedPlace(document);
    const std::optional<PointList>& start = document.selectionDragStartPositions;
    if (!place || !start) return;
    const Stroke& selected = strokeAt(document.layers, *place);
    if (start->size() != selected.points.size()) return;

    // From the start positions each time, so that no rounding adds up over many small movements.
    std::vector<Point> moved;
    moved.reserve(start->size());
    for (const Point p : *start) {
        moved.push_back({p.x + translation.width, p.y + translation.height});
    }
    Stroke stroke = selected;
    stroke.points = PointList(std::move(moved));
    document.layers.modifyAndPublish([&](LayerList& all) {
        all[place->layer].strokes.replace(place->stroke, std::move(stroke));
    });
}

void endSelectDrag(DrawingDocument& document) {
    if (document.selectionDragStartPositions->has_value())
        document.selectionDragStartPositions = std::nullopt;
}

void deleteSelectedStroke(DrawingDocument& document) {
    const auto place = selectedPlace(document);
    if (!place) return;
    document.saveState();
    document.layers.modifyAndPublish(
        [&](LayerList& all) { all[place->layer].strokes.erase(place->stroke); });
    // The index first, unlike clearSelection(): the order in which the properties publish is fixed.
    document.selectedStrokeIndex = std::nullopt;
    document.selectedLayerID = std::nullopt;
}

}  // namespace marlevo
