#pragma once

#include "graphics/PixelBuffer.h"
#include "render/Scene.h"

#include <vector>

namespace marlevo {

class ImageCache;

/// Paints parts of a scene that do not overlap, without the stroke in progress, on all cores. They
/// are all in the area `whole`, and inside the canvas.
void paintScene(const Scene& scene, const Color& gridColor, ImageCache& images,
                const std::vector<PixelBuffer>& parts, const IntRect& whole);

}  // namespace marlevo
