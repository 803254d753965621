#pragma once

#include "graphics/Blend.h"
#include "graphics/BlockGrid.h"
#include "graphics/OcclusionMask.h"
#include "graphics/PixelBuffer.h"

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

namespace marlevo {

/// The coverages of one block of a BlockGrid, row after row.
using BlockCoverage = std::array<std::uint8_t, BlockGrid::blockPixels>;

/// The coverage of one stroke in the block at a device position.
struct CoverageBlock {
    int left = 0;
    int top = 0;
    BlockCoverage coverage{};
};

/// Blends `color` onto the pixels.
struct BlendSink {
    PixelBuffer target;
    PackedColor color;

    const IntRect& area() const { return target.area; }
};

/// Raises the mask's coverages to those of the stroke where these are greater.
struct MaskSink {
    CoverageMask mask;

    const IntRect& area() const { return mask.area; }
};

/// Appends the blocks in which a pixel is visible to `blocks`. An opaque stroke then hides the
/// pixels that it covers fully. Refers to objects of the caller.
struct RecordSink {
    IntRect bounds;
    bool isOpaque = false;
    OcclusionMask& occlusion;
    std::vector<CoverageBlock>& blocks;

    const IntRect& area() const { return bounds; }
};

/// The receiver of the coverage of a stroke. It takes pixels of its area() only.
using CoverageSink = std::variant<BlendSink, MaskSink, RecordSink>;

}  // namespace marlevo
