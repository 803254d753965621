#pragma once

#include "graphics/RasterImage.h"
#include "model/LayerList.h"
#include "render/LayerPainting.h"

#include <optional>
#include <vector>

namespace marlevo {

/// Consecutive layers of which at most the first has an image. They can be drawn part by part with
/// one decoded image in memory.
struct LayerRun {
    std::vector<const Layer*> layers;
    std::optional<RasterImage> image;  ///< of the first layer, if it has one that can be decoded
};

/// Calls `draw` with each run of the visible layers, from the lowest.
template <typename Draw>
void forEachRun(const LayerList& layers, const ImageDecoder& decode, Draw draw) {
    LayerRun run;
    for (const Layer& layer : layers) {
        if (!layer.isVisible) continue;
        if (layer.imageData) {
            if (!run.layers.empty()) draw(run);
            run = {{}, decode(*layer.imageData)};
        }
        run.layers.push_back(&layer);
    }
    if (!run.layers.empty()) draw(run);
}

}  // namespace marlevo
