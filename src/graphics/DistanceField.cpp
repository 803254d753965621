#include "graphics/DistanceField.h"

#include <algorithm>
#include <iterator>
#include <variant>

// Compiles this file once per instruction set. Precedes every include of Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/DistanceField.cpp"
#include <hwy/foreach_target.h>
// Follows foreach_target.h, which sets the instruction set.
#include "graphics/CoverageSink-inl.h"
#include "graphics/DistanceField-inl.h"

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

template <typename Sink>
HWY_INLINE void drainField(DistanceField& field, const RoundPen& pen, const Sink& sink) {
    BlockGrid& grid = field.grid();
    for (int strip = 0; strip < grid.stripCount(); ++strip) {
        const int left = grid.left() + strip * BlockGrid::blockWidth;
        DistanceField::Block* const blocks = field.strip(strip);
        grid.drain(strip, [&](int block) {
            BlockCoverage coverage;
            takeCoverage(blocks[block], pen, coverage.data());
            put(sink, left, grid.top() + block * BlockGrid::blockHeight, coverage);
        });
    }
}

void drain(DistanceField& field, const RoundPen& pen, const CoverageSink& sink) {
    std::visit([&](const auto& each) { drainField(field, pen, each); }, sink);
}

void blendBlocks(std::span<const CoverageBlock> blocks, const BlendSink& sink) {
    for (const CoverageBlock& block : blocks)
        put(sink, block.left, block.top, block.coverage);
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(addSegments);
HWY_EXPORT(blendBlocks);
HWY_EXPORT(drain);

void DistanceField::reset(const IntRect& area) {
    grid_.reset(area);
    if (blocks_.size() >= grid_.blockCount()) return;
    Block block{};
    std::fill(std::begin(block.squares), std::end(block.squares), untouched);
    blocks_.resize(grid_.blockCount(), block);
}

void DistanceField::add(const FlattenedPath& line, double reach, const OcclusionMask* occlusion) {
    HWY_DYNAMIC_DISPATCH(addSegments)(*this, line, reach, occlusion);
}

void DistanceField::drainInto(const CoverageSink& sink, const RoundPen& pen) {
    HWY_DYNAMIC_DISPATCH(drain)(*this, pen, sink);
}

void putBlocks(std::span<const CoverageBlock> blocks, const BlendSink& sink) {
    HWY_DYNAMIC_DISPATCH(blendBlocks)(blocks, sink);
}

}  // namespace marlevo
#endif
