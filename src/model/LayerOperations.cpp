#include "model/LayerOperations.h"

#include "model/DrawingDocument.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace marlevo {

void DrawingDocument::addLayer() {
    saveState();
    Layer layer("Layer " + std::to_string(layers->size() + 1));
    layers.modifyAndPublish([&](LayerList& all) { all.push_back(std::move(layer)); });
    activeLayerIndex = std::ssize(*layers) - 1;
}

void DrawingDocument::deleteLayer(std::int64_t at) {
    if (layers->size() < 2 || !isValidIndex(at, *layers)) return;
    saveState();
    layers.modifyAndPublish([&](LayerList& all) { all.erase(at); });
    clampActiveLayerIndex();
}

void DrawingDocument::moveLayer(std::int64_t from, std::int64_t to) {
    if (!isValidIndex(from, *layers) || !isValidIndex(to, *layers)) return;
    saveState();
    Layer layer = (*layers)[from];
    layers.modifyAndPublish([&](LayerList& all) { all.erase(from); });
    layers.modifyAndPublish([&](LayerList& all) { all.insert(to, std::move(layer)); });
    activeLayerIndex = to;
}

void DrawingDocument::toggleLayerVisibility(std::int64_t index) {
    if (!isValidIndex(index, *layers)) return;
    layers.modifyAndPublish([&](LayerList& all) { all[index].isVisible = !all[index].isVisible; });
}

void DrawingDocument::clearActiveLayer() {
    const Layer* active = activeLayer();
    if (!active || active->strokes.isEmpty()) return;
    saveState();
    const std::int64_t index = *activeLayerIndex;
    layers.modifyAndPublish([&](LayerList& all) { all[index].strokes.clear(); });
    clearSelection();
}

void DrawingDocument::clearAll() {
    const auto isEmpty = [](const Layer& layer) { return layer.strokes.isEmpty(); };
    if (std::ranges::all_of(*layers, isEmpty)) return;
    saveState();
    for (std::size_t index = 0; index < layers->size(); ++index)
        layers.modifyAndPublish([&](LayerList& all) { all[index].strokes.clear(); });
    clearSelection();
}

void DrawingDocument::clearSelection() {
    selectedLayerID = std::nullopt;
    selectedStrokeIndex = std::nullopt;
}

void DrawingDocument::clampActiveLayerIndex() {
    activeLayerIndex = std::min<std::int64_t>(*activeLayerIndex, std::ssize(*layers) - 1);
}

void deleteActiveLayer(DrawingDocument& document) {
    if (std::ssize(*document.layers) > 1) document.deleteLayer(document.activeLayerIndex);
}

void moveActiveLayerUp(DrawingDocument& document) {
    const std::int64_t index = document.activeLayerIndex;
    if (index < std::ssize(*document.layers) - 1) document.moveLayer(index, index + 1);
}

void moveActiveLayerDown(DrawingDocument& document) {
    const std::int64_t index = document.activeLayerIndex;
    if (index > 0) document.moveLayer(index, index - 1);
}

}  // namespace marlevo
