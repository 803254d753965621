// Writes blocks of coverage to each kind of sink. Included once per instruction set, hence the
// guard.

#include "graphics/BlendVector-inl.h"
#include "graphics/CoverageSink.h"

#include <algorithm>
#include <cstddef>

#if defined(MARLEVO_GRAPHICS_COVERAGE_SINK_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef MARLEVO_GRAPHICS_COVERAGE_SINK_INL_H
#undef MARLEVO_GRAPHICS_COVERAGE_SINK_INL_H
#else
#define MARLEVO_GRAPHICS_COVERAGE_SINK_INL_H
#endif

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

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
