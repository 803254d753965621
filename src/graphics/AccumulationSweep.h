#pragma once

#include "graphics/Blend.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// The running sum in a fully covered pixel: cover 256 times twice the width 256.
inline constexpr std::int32_t fullSum = 1 << 17;

/// A row of differences. Their running sum is the winding number averaged over each pixel.
struct SumRow {
    static constexpr std::size_t cellsPerMark = 16;
    static constexpr std::uint8_t dirtyMark = 0xFF;

    std::int32_t* cells;  ///< cellsPerMark for each mark, at least as many as pixels
    std::uint8_t* marks;  ///< `dirtyMark` where a cell may differ from 0, else 0
    std::size_t markCount;
    std::int32_t before;  ///< the sum before the first cell

    void markDirty(std::int32_t cell) const {
        marks[static_cast<std::size_t>(cell) / cellsPerMark] = dirtyMark;
    }
};

/// Blends `color` onto `count` pixels by the coverage that the running sums give, and sets the
/// row's cells and marks to 0.
void sweepRow(const SumRow& row, std::uint8_t* pixels, std::size_t count, PackedColor color);

}  // namespace marlevo
