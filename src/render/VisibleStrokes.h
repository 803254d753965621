#pragma once

#include "graphics/CoveredPixels.h"
#include "graphics/IntRect.h"
#include "render/LayerRun.h"

#include <functional>
#include <span>
#include <vector>

namespace marlevo {

/// A stroke and the device pixels that it may touch.
struct StrokeInSight {
    const Stroke* stroke = nullptr;
    IntRect area;
};

/// For each of some areas of device pixels the strokes of the run that may leave a mark there, in
/// drawing order, seen at `scale` device pixels a canvas pixel.
std::vector<std::vector<StrokeInSight>>
strokesInSight(const LayerRun& run, std::span<const IntRect> areas, double scale);

/// Adds the pixels that drawing a stroke covers wholly and opaquely; false when it can be seen
/// nowhere, since all that it touches was covered already.
using Cover = std::function<bool(const Stroke&, CoveredPixels&)>;

/// Where strokes lie in many layers over each other, takes out those of which nothing is left to be
/// seen in the area: an opaque pixel is the same whatever was below it.
std::vector<StrokeInSight> withoutHidden(std::vector<StrokeInSight> strokes, const IntRect& area,
                                         const Cover& cover);

}  // namespace marlevo
