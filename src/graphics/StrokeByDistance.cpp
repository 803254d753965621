#include "graphics/StrokeByDistance.h"

#include "graphics/Bounds.h"
#include "graphics/DistanceField.h"
#include "graphics/RoundPen.h"

#include <algorithm>
#include <array>
#include <cmath>

// Compiles this file once for each instruction set; must come before what includes Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/StrokeByDistance.cpp"
#include <hwy/foreach_target.h>
// After foreach_target.h, which says what to compile it for.
#include "graphics/BlendVector-inl.h"
#include "graphics/SegmentDistances-inl.h"

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

#if HWY_TARGET != HWY_SCALAR

HWY_INLINE void blendRow(std::uint8_t* pixels, const std::uint8_t* coverage, PackedColor packed) {
    const hn::CappedTag<std::uint32_t, blockWidth> d32;
    const hn::Rebind<std::uint8_t, decltype(d32)> dCoverage;
    const hn::Repartition<std::uint16_t, decltype(d32)> d16;
    const hn::Repartition<std::uint8_t, decltype(d32)> dBytes;
    const auto color = unpackBytes(d32, loadPixelOfColor(d32, packed));
    const auto alpha = hn::Set(d16, packed.alpha);
    for (std::size_t i = 0; i < blockWidth; i += hn::Lanes(d32)) {
        const auto below = hn::BitCast(d32, hn::LoadU(dBytes, pixels + 4 * i));
        const auto cover = hn::PromoteTo(d32, hn::LoadU(dCoverage, coverage + i));
        const auto blended = blendPixels(d32, below, cover, color, alpha);
        hn::StoreU(hn::BitCast(dBytes, blended), dBytes, pixels + 4 * i);
    }
}

/// A bit for each pixel of a block that is covered by at least so much.
HWY_INLINE std::uint32_t coveredBy(const std::uint8_t* coverage, std::uint8_t least) {
    const hn::FixedTag<std::uint8_t, DistanceField::blockPixels> d;
    const auto known = hn::LoadU(d, coverage);
    const auto isCovered = hn::Eq(hn::Max(known, hn::Set(d, least)), known);
    std::array<std::uint8_t, DistanceField::blockPixels> bits{};  // a whole vector is written
    hn::StoreMaskBits(d, isCovered, bits.data());
    return bits[0] | static_cast<std::uint32_t>(bits[1]) << 8;
}

#else

void blendRow(std::uint8_t* pixels, const std::uint8_t* coverage, PackedColor color) {
    for (int i = 0; i < blockWidth; ++i)
        blendPixel(pixels + 4 * i, color, coverage[i]);
}

std::uint32_t coveredBy(const std::uint8_t* coverage, std::uint8_t least) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < DistanceField::blockPixels; ++i)
        bits |= (coverage[i] >= least ? 1U : 0U) << i;
    return bits;
}

#endif

using BlockCoverage = std::array<std::uint8_t, DistanceField::blockPixels>;

/// Calls take(left, top, coverage) for each block that the field touches, and makes it far again.
template <typename Take>
HWY_INLINE void takeBlocks(DistanceField& field, const RoundPen& pen, Take take) {
    for (int strip = 0; strip < field.stripCount(); ++strip) {
        const int left = field.left() + strip * blockWidth;
        Block* const blocks = field.strip(strip);
        field.drain(strip, [&](int index) {
            BlockCoverage coverage;
            takeCoverage(blocks[index], pen, coverage.data());
            take(left, field.top() + index * blockHeight, coverage);
        });
    }
}

/// Calls each(x, y, coverage of that pixel) for those pixels of a block that lie in `area`.
template <typename Each>
HWY_INLINE void forEachPixel(int left, int top, const BlockCoverage& coverage, const IntRect& area,
                             Each each) {
    const int firstX = std::max(left, area.left);
    const int endX = std::min(left + blockWidth, area.right);
    const int endY = std::min(top + blockHeight, area.bottom);
    for (int y = std::max(top, area.top); y < endY; ++y)
        for (int x = firstX; x < endX; ++x)
            each(x, y, coverage[std::size_t(y - top) * blockWidth + std::size_t(x - left)]);
}

HWY_INLINE void blendBlock(int left, int top, const BlockCoverage& coverage,
                           const PixelBuffer& target, PackedColor color) {
    const IntRect& area = target.area;
    const bool isInside = left >= area.left && left + blockWidth <= area.right && top >= area.top &&
                          top + blockHeight <= area.bottom;
    if (isInside) {
        for (int row = 0; row < blockHeight; ++row)
            blendRow(target.pixel(left, top + row),
                     coverage.data() + std::ptrdiff_t{row} * blockWidth, color);
    } else {
        forEachPixel(left, top, coverage, area, [&](int x, int y, std::uint8_t covered) {
            blendPixel(target.pixel(x, y), color, covered);
        });
    }
}

/// Raises the mask's coverages to those of the field, and makes the field far again.
void raiseToField(DistanceField& field, const RoundPen& pen, const CoverageMask& mask) {
    takeBlocks(field, pen, [&](int left, int top, const BlockCoverage& coverage) {
        forEachPixel(left, top, coverage, mask.area, [&](int x, int y, std::uint8_t covered) {
            std::uint8_t& known = *mask.pixel(x, y);
            known = std::max(known, covered);
        });
    });
}

void blendField(DistanceField& field, const RoundPen& pen, const PixelBuffer& target,
                PackedColor color) {
    takeBlocks(field, pen, [&](int left, int top, const BlockCoverage& coverage) {
        blendBlock(left, top, coverage, target, color);
    });
}

/// Holds what the field covers of pixels that are not covered yet, and makes it far again.
void holdField(DistanceField& field, const RoundPen& pen, HeldCoverage& held, bool isOpaque) {
    takeBlocks(field, pen, [&](int left, int top, const BlockCoverage& coverage) {
        if ((held.covered.visiblePixelsOf(left, top) & coveredBy(coverage.data(), 1)) == 0) return;
        held.blocks.push_back({left, top, coverage});
        if (isOpaque) held.covered.occlude(left, top, coveredBy(coverage.data(), 255));
    });
}

void blendBlocks(std::span<const CoverageBlock> blocks, const PixelBuffer& target,
                 PackedColor color) {
    for (const CoverageBlock& block : blocks)
        blendBlock(block.left, block.top, block.coverage, target, color);
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(addSegments);
HWY_EXPORT(blendBlocks);
HWY_EXPORT(blendField);
HWY_EXPORT(holdField);
HWY_EXPORT(raiseToField);

namespace {

// Larger strokes are drawn in bands, which keeps the field in the second-level cache.
constexpr int maxFieldPixels = 1 << 17;

/// Calls take(field, pen, band) with the distances in each band of `area` that the pen touches,
/// which may be left out where all is covered.
template <typename Take>
void forEachBand(const FlattenedPath& path, double deviceWidth, const IntRect& area,
                 const OcclusionMask* covered, Take take) {
    if (!(deviceWidth > 0) || area.isEmpty()) return;
    const RoundPen pen(deviceWidth);
    const IntRect touched = Bounds::of(path.points).grownBy(pen.reach).pixelsWithin(area);
    if (touched.isEmpty()) return;

    thread_local DistanceField field;
    const int bandHeight = std::max(maxFieldPixels / touched.width(), 2);
    int bottom = 0;
    for (int top = touched.top; top < touched.bottom; top = bottom) {
        // Bands end where blocks do: what lies in two of them would be taken twice.
        bottom = std::min((top + bandHeight) & -DistanceField::blockHeight, touched.bottom);
        const IntRect band{touched.left, top, touched.right, bottom};
        field.reset(band);
        HWY_DYNAMIC_DISPATCH(addSegments)(field, path, pen.reach, covered);
        try {
            take(field, pen, band);
        } catch (...) {
            field = {};  // what was not taken must not show in the next stroke
            throw;
        }
    }
}

}  // namespace

void strokeByDistance(const FlattenedPath& path, double deviceWidth, const PixelBuffer& target,
                      PackedColor color) {
    if (color.alpha == 0) return;
    forEachBand(path, deviceWidth, target.area, nullptr,
                [&](DistanceField& field, const RoundPen& pen, const IntRect& band) {
                    PixelBuffer pixels = target;
                    pixels.area = band;
                    pixels.bytes = target.pixel(band.left, band.top);
                    HWY_DYNAMIC_DISPATCH(blendField)(field, pen, pixels, color);
                });
}

void coverByDistance(const FlattenedPath& path, double deviceWidth, const CoverageMask& mask) {
    forEachBand(path, deviceWidth, mask.area, nullptr,
                [&](DistanceField& field, const RoundPen& pen, const IntRect& band) {
                    const CoverageMask part{mask.pixel(band.left, band.top), mask.stride, band};
                    HWY_DYNAMIC_DISPATCH(raiseToField)(field, pen, part);
                });
}

void holdByDistance(const FlattenedPath& path, double deviceWidth, const IntRect& area,
                    PackedColor color, HeldCoverage& held) {
    if (color.alpha == 0) return;
    forEachBand(path, deviceWidth, area, &held.covered,
                [&](DistanceField& field, const RoundPen& pen, const IntRect&) {
                    HWY_DYNAMIC_DISPATCH(holdField)(field, pen, held, color.alpha == 255);
                });
}

void blendHeld(std::span<const CoverageBlock> blocks, const PixelBuffer& target,
               PackedColor color) {
    HWY_DYNAMIC_DISPATCH(blendBlocks)(blocks, target, color);
}

IntRect areaByDistance(const FlattenedPath& path, double deviceWidth) {
    constexpr int limit = static_cast<int>(FlattenedPath::maxCoordinate) * 2;
    return Bounds::of(path.points)
        .grownBy(RoundPen(deviceWidth).reach)
        .pixelsWithin({-limit, -limit, limit, limit});
}

}  // namespace marlevo
#endif
