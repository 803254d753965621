#include "model/DrawingDocument.h"
#include "tools/HitTest.h"

#include <algorithm>

namespace marlevo {

namespace {

/// How near a click must come to a stroke, in view points at any zoom.
constexpr double hitTolerance = 10;

/// How far the outline stands off the selected stroke's points, in canvas pixels at any zoom.
constexpr double outlineMargin = 6;

}  // namespace

std::optional<DrawingDocument::StrokePlace> DrawingDocument::selectedStroke() const {
    const std::optional<Uuid>& layerID = selectedLayerID;
    const std::optional<std::int64_t>& strokeIndex = selectedStrokeIndex;
    if (!layerID || !strokeIndex || *strokeIndex < 0) return std::nullopt;
    const auto layer = std::find_if(layers->begin(), layers->end(),
                                    [&](const Layer& each) { return each.id == *layerID; });
    const auto index = static_cast<std::size_t>(*strokeIndex);
    if (layer == layers->end() || index >= layer->strokes.size()) return std::nullopt;
    return StrokePlace{static_cast<std::size_t>(layer - layers->begin()), index};
}

void DrawingDocument::selectStroke(Point at) {
    const double tolerance = hitTolerance / zoom;
    const LayerList& all = layers;
    for (auto layer = all.rbegin(); layer != all.rend(); ++layer) {
        if (!layer->isVisible) continue;
        if (const auto index = firstHit(layer->strokes, at, tolerance)) {
            selectedLayerID = layer->id;
            selectedStrokeIndex = static_cast<std::int64_t>(*index);
            return;
        }
    }
    clearSelection();
}

std::optional<Rect> DrawingDocument::selectedStrokeBoundingRect() const {
    const auto place = selectedStroke();
    if (!place) return std::nullopt;
    return (*layers)[place->layer].strokes[place->stroke].boundingRect().grownBy(outlineMargin);
}

void DrawingDocument::beginSelectDrag() {
    const auto place = selectedStroke();
    if (!place) return;
    saveState();
    selectionDragStartPositions = (*layers)[place->layer].strokes[place->stroke].points;
}

void DrawingDocument::updateSelectDrag(Size translation) {
    const auto place = selectedStroke();
    const std::optional<PointList>& start = selectionDragStartPositions;
    if (!place || !start) return;
    const Stroke& selected = (*layers)[place->layer].strokes[place->stroke];
    if (start->size() != selected.points.size()) return;

    // Always from the start positions, so that no rounding adds up however often the pointer moves.
    std::vector<Point> moved;
    moved.reserve(start->size());
    for (const Point p : *start) {
        moved.push_back({p.x + translation.width, p.y + translation.height});
    }
    Stroke stroke = selected;
    stroke.points = PointList(std::move(moved));
    layers.modify([&](LayerList& all) {
        all[place->layer].strokes.replace(place->stroke, std::move(stroke));
    });
}

void DrawingDocument::endSelectDrag() {
    if (selectionDragStartPositions->has_value()) selectionDragStartPositions = std::nullopt;
}

void DrawingDocument::deleteSelectedStroke() {
    const auto place = selectedStroke();
    if (!place) return;
    saveState();
    layers.modify([&](LayerList& all) { all[place->layer].strokes.erase(place->stroke); });
    selectedStrokeIndex = std::nullopt;
    selectedLayerID = std::nullopt;
}

}  // namespace marlevo
