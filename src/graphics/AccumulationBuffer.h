#pragma once

#include "graphics/Blend.h"
#include "graphics/PixelBuffer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace marlevo {

/// A straight edge in 1/256 pixel, from its upper end to its lower one: y0 < y1.
struct Edge {
    std::int32_t x0 = 0;
    std::int32_t y0 = 0;
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    /// +1 when the outline runs downwards along the edge, −1 when it runs upwards.
    std::int32_t winding = 1;
};

/// Collects the signed area and cover of edges in a band of pixel rows, and turns them into
/// coverage. What an edge adds to a cell is a function of the edge and the cell alone, never of
/// the band, and sums of integers do not depend on order.
class AccumulationBuffer {
public:
    static constexpr int subpixelBits = 8;
    static constexpr std::int32_t subpixels = 1 << subpixelBits;

    /// Makes the band cover `area`, a non-empty rectangle, with nothing in it.
    void reset(const IntRect& area);

    /// Adds the part of the edge that lies in the band's rows. What is left of the area counts
    /// for all its columns, what is right of it for none. Coordinates are within ±2²⁹.
    void add(const Edge& edge);

    /// Blends `color` on the pixels of `target`, which must hold the whole area, by what has been
    /// collected, and leaves the band empty as after reset().
    void blendInto(const PixelBuffer& target, PackedColor color);

    /// What the edges within the area add to all columns behind it in row `y`.
    std::int32_t rowSum(int y) const;

    /// Blends `color` on the pixels (left … right − 1) of row `y`, which lie in the area, and keeps
    /// what was collected. `before` is the row's sum left of the area, where edges that were added
    /// do not count.
    void blendRow(int y, int left, int right, std::int32_t before, std::uint8_t* pixels,
                  PackedColor color) const;

private:
    struct EdgeLine;
    struct EdgePiece;

    struct RowStart;

    static void addPair(RowStart row, const EdgePiece& piece, const EdgeLine& line);
    void addPiece(std::size_t row, EdgePiece piece, EdgeLine line);
    std::int32_t sumOfCells(int y, std::size_t count) const;

    IntRect area_;
    std::size_t rowCells_ = 0;  ///< whole blocks, with room for the cell behind the last column
    std::size_t rowMarks_ = 0;
    std::vector<std::int32_t> cells_;      ///< differences of the running sum, row by row
    std::vector<std::int32_t> leftCover_;  ///< the running sum at the start of each row
    std::vector<std::uint8_t> dirty_;      ///< `dirtyMark` where a block is not all 0
};

}  // namespace marlevo
