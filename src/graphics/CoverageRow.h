#pragma once

#include "graphics/Blend.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// Cells of a row are looked after in blocks of this many.
inline constexpr int sumBlockWidth = 16;
inline constexpr std::size_t sumWordBits = 64;

/// The running sum where a pixel is fully covered: cover 256 times twice the width 256.
inline constexpr std::int32_t fullSum = 1 << 17;

/// A row of differences whose running sum is the winding number averaged over each pixel.
struct SumRow {
    std::int32_t* cells;   ///< whole blocks, at least one cell more than pixels
    std::uint64_t* dirty;  ///< one bit a block; where it is 0 the block's cells are all 0
    std::size_t dirtyWords;
    std::int32_t running;  ///< the sum before the first cell
};

/// Blends `color` on `count` pixels by the part of each that the sums say is covered, and sets the
/// row's cells and bits to 0.
void blendCoverageRow(SumRow row, std::uint8_t* pixels, std::size_t count, PackedColor color);

}  // namespace marlevo
