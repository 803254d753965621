#pragma once

#include "graphics/Blend.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// Number of cells that share one dirty mark.
inline constexpr int cellsPerMark = 16;
/// Marks are bytes. The sweep reads eight at once.
inline constexpr std::size_t markGroup = 8;
inline constexpr std::uint8_t dirtyMark = 0xFF;

/// The running sum in a fully covered pixel: cover 256 times twice the width 256.
inline constexpr std::int32_t fullSum = 1 << 17;

/// A row of differences. Their running sum is the winding number averaged over each pixel.
struct SumRow {
    std::int32_t* cells;    ///< a multiple of cellsPerMark, at least one more than pixels
    std::uint8_t* dirty;    ///< `dirtyMark` where a cell may differ from 0, else 0
    std::size_t markCount;  ///< a multiple of markGroup
    std::int32_t running;   ///< the sum before the first cell
};

/// Blends `color` onto `count` pixels by the coverage that the running sums give, and sets the
/// row's cells and marks to 0.
void sweepRow(SumRow row, std::uint8_t* pixels, std::size_t count, PackedColor color);

}  // namespace marlevo
