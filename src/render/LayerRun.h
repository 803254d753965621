#pragma once

#include "graphics/RasterImage.h"
#include "model/LayerList.h"
#include "render/LayerPainting.h"

#include <optional>
#include <vector>

namespace marlevo {

/// Layers that are drawn one after the other and of which at most the first has an image, so that
/// they can be drawn in many parts while no more than one decoded image is held.
struct LayerRun {
    std::vector<const Layer*> layers;
    std::optional<RasterImage> image;  ///< of the first layer, if it has one that can be decoded
};

/// Takes the visible layers apart into runs, from below.
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
