#include "graphics/DistanceField.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <variant>

// Compiles this file once per instruction set. Precedes every include of Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/DistanceField.cpp"
#include <hwy/foreach_target.h>
// Follows foreach_target.h, which sets the instruction set.
#include "graphics/BlendVector-inl.h"
#include "graphics/DistanceField-inl.h"

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

/// True if the whole block is in `area`.
HWY_INLINE bool contains(const IntRect& area, int left, int top) {
    return left >= area.left && left + BlockGrid::blockWidth <= area.right && top >= area.top &&
           top + BlockGrid::blockHeight <= area.bottom;
}

/// Calls each(x, y, coverage) for the pixels of a block in `area`.
template <typename Each>
HWY_INLINE void forEachPixel(int left, int top, const BlockCoverage& coverage, const IntRect& area,
                             Each each) {
    const int firstX = std::max(left, area.left);
    const int endX = std::min(left + BlockGrid::blockWidth, area.right);
    const int endY = std::min(top + BlockGrid::blockHeight, area.bottom);
    for (int y = std::max(top, area.top); y < endY; ++y)
        for (int x = firstX; x < endX; ++x)
            each(x, y,
                 coverage[std::size_t(y - top) * BlockGrid::blockWidth + std::size_t(x - left)]);
}

HWY_INLINE void put(const BlendSink& sink, int left, int top, const BlockCoverage& coverage) {
    if (!contains(sink.target.area, left, top)) {
        forEachPixel(left, top, coverage, sink.target.area,
                     [&](int x, int y, std::uint8_t covered) {
                         blendPixel(sink.target.pixel(x, y), sink.color, covered);
                     });
        return;
    }
    const hn::CappedTag<std::uint32_t, BlockGrid::blockWidth> d32;
    const hn::Rebind<std::uint8_t, decltype(d32)> dCoverage;
    const ColorBlender<decltype(d32)> blender(sink.color);
    const std::uint8_t* covered = coverage.data();
    for (int row = 0; row < BlockGrid::blockHeight; ++row) {
        std::uint8_t* const pixels = sink.target.pixel(left, top + row);
        for (std::size_t x = 0; x < BlockGrid::blockWidth; x += hn::Lanes(d32))
            blender.blend(hn::PromoteTo(d32, hn::LoadU(dCoverage, covered + x)), pixels + 4 * x,
                          hn::Lanes(d32));
        covered += BlockGrid::blockWidth;
    }
}

HWY_INLINE void put(const MaskSink& sink, int left, int top, const BlockCoverage& coverage) {
    const auto raise = [](std::uint8_t& known, std::uint8_t covered) {
        known = std::max(known, covered);
    };
    if (!contains(sink.mask.area, left, top)) {
        forEachPixel(left, top, coverage, sink.mask.area, [&](int x, int y, std::uint8_t covered) {
            raise(*sink.mask.pixel(x, y), covered);
        });
        return;
    }
    // A loop of fixed length, which the compiler vectorises.
    for (int row = 0; row < BlockGrid::blockHeight; ++row) {
        std::uint8_t* const known = sink.mask.pixel(left, top + row);
        for (int x = 0; x < BlockGrid::blockWidth; ++x)
            raise(known[x], coverage[std::size_t(row) * BlockGrid::blockWidth + std::size_t(x)]);
    }
}

/// A bit for each pixel of a block whose coverage is at least `least`.
HWY_INLINE std::uint32_t pixelsCovered(const BlockCoverage& coverage, std::uint8_t least) {
#if HWY_TARGET != HWY_SCALAR
    const hn::FixedTag<std::uint8_t, BlockGrid::blockPixels> d;
    const auto known = hn::LoadU(d, coverage.data());
    const auto isCovered = hn::Eq(hn::Max(known, hn::Set(d, least)), known);
    std::array<std::uint8_t, BlockGrid::blockPixels> bits{};  // a whole vector is written
    hn::StoreMaskBits(d, isCovered, bits.data());
    return bits[0] | static_cast<std::uint32_t>(bits[1]) << 8;
#else
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < coverage.size(); ++i)
        bits |= (coverage[i] >= least ? 1U : 0U) << i;
    return bits;
#endif
}

HWY_INLINE void put(const RecordSink& sink, int left, int top, const BlockCoverage& coverage) {
    const std::uint32_t visible = sink.occlusion.visiblePixelsOf(left, top);
    if ((visible & pixelsCovered(coverage, 1)) == 0) return;
    sink.blocks.push_back({left, top, coverage});
    if (sink.isOpaque) sink.occlusion.occlude(left, top, pixelsCovered(coverage, 255));
}

template <typename Sink>
HWY_INLINE void drainField(DistanceField& field, const RoundPen& pen, const Sink& sink) {
    BlockGrid& grid = field.grid();
    for (int strip = 0; strip < grid.stripCount(); ++strip) {
        const int left = grid.left() + strip * BlockGrid::blockWidth;
        DistanceField::Block* const blocks = field.strip(strip);
        for (int first = 0; first < grid.blocksPerStrip(); first += 64) {
            for (std::uint64_t bits = grid.takeBits(strip, first); bits != 0; bits &= bits - 1) {
                const int block = first + std::countr_zero(bits);
                BlockCoverage coverage;
                takeCoverage(blocks[block], pen, coverage.data());
                put(sink, left, grid.top() + block * BlockGrid::blockHeight, coverage);
            }
        }
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
