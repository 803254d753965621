#pragma once

#include "graphics/AccumulationSweep.h"
#include "graphics/Blend.h"
#include "graphics/Edge.h"
#include "graphics/PixelBuffer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace marlevo {

/// Accumulates the signed area and cover of edges in the cells, one per pixel, of a band of rows,
/// and converts them to coverage: the running sum along a row is the winding number averaged over
/// each pixel (after Raph Levien's font-rs and David Turner's FreeType, in integers).
///
/// The contribution of an edge to a cell depends on the edge and the cell alone, never on the band,
/// and sums of integers do not depend on their order.
class AccumulationBuffer {
public:
    /// Covers `area`, which is not empty, without edges. All edges must be blended before.
    void reset(const IntRect& area);

    /// Adds the part of the edge in the band's rows. A part left of the area adds cover to all
    /// columns, a part right of it to none.
    void add(const Edge& edge);

    /// Adds the edges of `other` in the band's rows, except their parts left of the other's area.
    void add(const AccumulationBuffer& other);

    /// Blends `color` onto the pixels of `target`, which must contain the area, and removes all
    /// edges.
    void blendInto(const PixelBuffer& target, PackedColor color);

private:
    /// A row of the area, counted from its top.
    SumRow row(std::size_t index);

    IntRect area_;
    std::size_t marksPerRow_ = 0;          ///< for more cells than the area has columns
    std::vector<std::int32_t> cells_;      ///< differences of the running sum, row by row
    std::vector<std::int32_t> leftCover_;  ///< the running sum at the start of each row
    std::vector<std::uint8_t> marks_;
};

}  // namespace marlevo
