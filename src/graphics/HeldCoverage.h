#pragma once

#include "graphics/DistanceField.h"
#include "graphics/IntRect.h"
#include "graphics/OcclusionMask.h"

#include <array>
#include <cstdint>
#include <vector>

namespace marlevo {

/// What one stroke covers of one block of pixels, which lies like those of a DistanceField.
struct CoverageBlock {
    int left = 0;  ///< the block's first pixel on the device plane
    int top = 0;
    std::array<std::uint8_t, DistanceField::blockPixels> coverage{};  ///< row after row
};

/// Coverages of strokes that come from the topmost down, kept to be blended from the lowest up.
/// Of those below, blocks that opaque ones
/// hide wholly are not kept.
struct HeldCoverage {
    explicit HeldCoverage(const IntRect& area) : covered(area) {}

    OcclusionMask covered;  ///< opaquely, by strokes that were held
    std::vector<CoverageBlock> blocks;
};

}  // namespace marlevo
