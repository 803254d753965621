#include "graphics/AccumulationSweep.h"

#include <algorithm>
#include <cstring>

// Compiles this file once per instruction set. Precedes every include of Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/AccumulationSweep.cpp"
#include <hwy/foreach_target.h>
// Follows foreach_target.h, which sets the instruction set.
#include "graphics/BlendVector-inl.h"

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {
namespace {

using Sums = hn::RebindToSigned<Pixels>;
using SumVector = hn::VFromD<Sums>;

HWY_INLINE SumVector prefixSums(SumVector v) {
    const Sums d;
    const auto lane = hn::Iota(d, 0);
    for (std::size_t distance = 1; distance < hn::Lanes(d); distance *= 2) {
        const auto from = hn::Sub(lane, hn::Set(d, static_cast<std::int32_t>(distance)));
        const auto moved =
            hn::TableLookupLanes(v, hn::IndicesFromVec(d, hn::Max(from, hn::Zero(d))));
        v = hn::Add(v, hn::IfThenElseZero(hn::Gt(from, hn::Set(d, -1)), moved));
    }
    return v;
}

/// 255 · |sum| / fullSum, rounded to nearest, at most 255.
HWY_INLINE hn::VFromD<Pixels> coverageOf(SumVector sums) {
    const Pixels d;
    const auto magnitude = hn::Min(hn::BitCast(d, hn::Abs(sums)), hn::Set(d, fullSum));
    const auto scaled = hn::Sub(hn::ShiftLeft<8>(magnitude), magnitude);
    return hn::ShiftRight<17>(hn::Add(scaled, hn::Set(d, fullSum / 2)));
}

/// Blends and clears whole blocks of cells, of which the first `pixelCount` have a pixel. Returns
/// the running sum after them.
HWY_INLINE std::int32_t blendCells(std::int32_t* HWY_RESTRICT cells, std::size_t cellCount,
                                   std::int32_t before, std::uint8_t* HWY_RESTRICT pixels,
                                   std::size_t pixelCount, const ColorBlender<>& blender) {
    const Sums d;
    const auto last =
        hn::IndicesFromVec(d, hn::Set(d, static_cast<std::int32_t>(hn::Lanes(d)) - 1));
    auto running = hn::Set(d, before);
    for (std::size_t at = 0; at < cellCount; at += hn::Lanes(d)) {
        const auto sums = hn::Add(prefixSums(hn::LoadU(d, cells + at)), running);
        hn::StoreU(hn::Zero(d), d, cells + at);
        running = hn::TableLookupLanes(sums, last);
        if (at < pixelCount) blender.blend(coverageOf(sums), pixels + 4 * at, pixelCount - at);
    }
    return hn::GetLane(running);
}

/// The first mark with this value, or `end`.
std::uint8_t* findMark(std::uint8_t* from, std::uint8_t* end, int value) {
    void* const found = std::memchr(from, value, static_cast<std::size_t>(end - from));
    return found != nullptr ? static_cast<std::uint8_t*>(found) : end;
}

void blendRow(const SumRow& row, std::uint8_t* pixels, std::size_t count, PackedColor color) {
    const ColorBlender<> blender(color);
    std::int32_t running = row.before;
    std::size_t done = 0;
    const auto blendGap = [&](std::size_t end) {
        const auto coverage = hn::GetLane(coverageOf(hn::Set(Sums(), running)));
        blendSolid(pixels + 4 * done, end - done,
                   color.coveredBy(static_cast<std::uint8_t>(coverage)));
    };
    std::uint8_t* const end = row.marks + row.markCount;
    for (std::uint8_t* mark = row.marks; mark != end;) {
        std::uint8_t* const first = findMark(mark, end, SumRow::dirtyMark);
        mark = findMark(first, end, 0);
        std::fill(first, mark, 0);
        const std::size_t start =
            static_cast<std::size_t>(first - row.marks) * SumRow::cellsPerMark;
        const std::size_t cells = static_cast<std::size_t>(mark - first) * SumRow::cellsPerMark;
        const std::size_t reached = std::min(start, count);
        blendGap(reached);
        running = blendCells(row.cells + start, cells, running, pixels + 4 * reached,
                             count - reached, blender);
        done = std::min(start + cells, count);
    }
    blendGap(count);
}

}  // namespace
}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(blendRow);

void sweepRow(const SumRow& row, std::uint8_t* pixels, std::size_t count, PackedColor color) {
    HWY_DYNAMIC_DISPATCH(blendRow)(row, pixels, count, color);
}

}  // namespace marlevo
#endif
