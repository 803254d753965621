#include "ui/LayerCommands.h"

#include "model/DrawingDocument.h"

#include <iterator>

namespace marlevo {

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
