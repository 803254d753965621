#pragma once

#include "graphics/Blend.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// Cells of a row are looked after in blocks of this many.
inline constexpr int sumBlockWidth = 16;
/// A row has a byte for each of its blocks, in groups of eight that fill a machine word.
inline constexpr std::size_t markGroup = 8;
inline constexpr std::uint8_t dirtyMark = 0xFF;

/// The running sum where a pixel is fully covered: cover 256 times twice the width 256.
inline constexpr std::int32_t fullSum = 1 << 17;

/// A row of differences whose running sum is the winding number averaged over each pixel.
struct SumRow {
    std::int32_t* cells;  ///< whole blocks, at least one cell more than pixels
    /// `dirtyMark` for each block whose cells may not all be 0, or 0.
    std::uint8_t* dirty;
    std::size_t markCount;  ///< whole groups
    std::int32_t running;   ///< the sum before the first cell
};

/// Blends `color` on `count` pixels by the part of each that the sums say is covered, and sets the
/// row's cells and marks to 0.
void sweepRow(SumRow row, std::uint8_t* pixels, std::size_t count, PackedColor color);

}  // namespace marlevo
