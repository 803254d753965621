#pragma once

#include "graphics/BlockGrid.h"
#include "graphics/CoverageSink.h"
#include "graphics/FlattenedPath.h"
#include "graphics/IntRect.h"
#include "graphics/RoundPen.h"

#include <cstddef>
#include <span>
#include <vector>

namespace marlevo {

/// The squared distance of each pixel's centre to the nearest segment of a line, in the blocks of a
/// BlockGrid. The bit of a block is set where a distance was lowered; the pixels of all other
/// blocks are `untouched`.
class DistanceField {
public:
    struct alignas(64) Block {
        float squares[BlockGrid::blockPixels];  ///< row after row
    };

    /// A squared distance beyond the reach of every pen.
    static constexpr float untouched = 1e30F;

    /// Covers at least `area`, all of it untouched. The field must be drained before.
    void reset(const IntRect& area);

    /// Lowers the distances to those from the segments, for all pixels nearer than `reach`. Runs of
    /// blocks that `occlusion`, which may be null, hides wholly are left out.
    void add(const FlattenedPath& line, double reach, const OcclusionMask* occlusion);

    /// Passes the pen's coverage of each touched block to the sink; the field is untouched again.
    void drainInto(const CoverageSink& sink, const RoundPen& pen);

    BlockGrid& grid() { return grid_; }
    /// The blocks of a strip from top to bottom.
    Block* strip(int index) { return blocks_.data() + grid_.indexOf(index, 0); }

private:
    BlockGrid grid_;
    std::vector<Block> blocks_;
};

/// Passes recorded blocks to the sink.
void putBlocks(std::span<const CoverageBlock> blocks, const BlendSink& sink);

}  // namespace marlevo
