#include "ui/LayerCommands.h"

#include "model/DrawingDocument.h"

namespace marlevo {

namespace {

std::int64_t layerCount(const DrawingDocument& document) {
    return static_cast<std::int64_t>(document.layers->size());
}

}  // namespace

void deleteActiveLayer(DrawingDocument& document) {
    if (layerCount(document) > 1) document.deleteLayer(document.activeLayerIndex);
}

void moveActiveLayerUp(DrawingDocument& document) {
    const std::int64_t index = document.activeLayerIndex;
    if (index < layerCount(document) - 1) document.moveLayer(index, index + 1);
}

void moveActiveLayerDown(DrawingDocument& document) {
    const std::int64_t index = document.activeLayerIndex;
    if (index > 0) document.moveLayer(index, index - 1);
}

}  // namespace marlevo
