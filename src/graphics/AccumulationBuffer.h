#pragma once

#include "graphics/Blend.h"
#include "graphics/PixelBuffer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace marlevo {

/// A straight edge in 1/256 pixel from its upper end to its lower one: y0 < y1.
struct Edge {
    std::int32_t x0 = 0;
    std::int32_t y0 = 0;
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    /// +1 when the outline runs downwards along the edge, −1 when it runs upwards.
    std::int32_t winding = 1;
};

/// Accumulates the signed area and cover of edges in the cells, one per pixel, of a band of rows,
/// and converts them to coverage: the running sum along a row is the winding number averaged over
/// each pixel (after Raph Levien's font-rs and David Turner's FreeType, in integers).
///
/// The contribution of an edge to a cell depends on the edge and the cell alone, never on the band,
/// and sums of integers do not depend on their order.
class AccumulationBuffer {
public:
    static constexpr int subpixelBits = 8;
    static constexpr std::int32_t subpixels = 1 << subpixelBits;

    /// Covers `area`, which is not empty, without edges. All edges must be blended before.
    void reset(const IntRect& area);

    /// Adds the part of the edge in the band's rows. A part left of the area adds cover to all
    /// columns, a part right of it to none. Coordinates are within ±2²⁹.
    void add(const Edge& edge);

    /// Blends `color` onto the pixels of `target`, which must contain the area, and removes all
    /// edges.
    void blendInto(const PixelBuffer& target, PackedColor color);

    /// The sum of all cells in row `y`: the contribution of its edges to the columns behind.
    std::int32_t rowSum(int y) const;

    /// Blends `color` onto the pixels (left … right − 1) of row `y`, which are in the area, and
    /// keeps the edges. `before` is the row's sum left of the area; edges there that were added to
    /// this buffer are ignored.
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
    std::size_t rowCells_ = 0;  ///< a multiple of cellsPerMark, more than the area's columns
    std::size_t rowMarks_ = 0;
    std::vector<std::int32_t> cells_;      ///< differences of the running sum, row by row
    std::vector<std::int32_t> leftCover_;  ///< the running sum at the start of each row
    std::vector<std::uint8_t> dirty_;      ///< `dirtyMark` where cells may differ from 0
};

}  // namespace marlevo
