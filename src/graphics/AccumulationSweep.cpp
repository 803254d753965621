#include "graphics/AccumulationSweep.h"

#include <algorithm>
#include <bit>
#include <cstring>

// Compiles this file once per instruction set. Precedes every include of Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/AccumulationSweep.cpp"
#include <hwy/foreach_target.h>
// Follows foreach_target.h, which sets the instruction set.
#include "graphics/BlendVector-inl.h"

#ifndef MARLEVO_GRAPHICS_ACCUMULATION_SWEEP_ONCE
#define MARLEVO_GRAPHICS_ACCUMULATION_SWEEP_ONCE
namespace marlevo {
namespace {

std::uint8_t coverageOf(std::int32_t sum) {
    const auto bits = static_cast<std::uint32_t>(sum);
    const std::uint32_t magnitude = std::min<std::uint32_t>(sum < 0 ? 0U - bits : bits, fullSum);
    return static_cast<std::uint8_t>((magnitude * 255 + fullSum / 2) / fullSum);
}

/// Sums wrap where an outline winds more than 16,000 times around a pixel.
std::int32_t wrappingSum(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// Blends and clears cells one by one; returns the running sum after the last.
inline std::int32_t blendCells(std::int32_t* cells, std::size_t count, std::int32_t running,
                               std::uint8_t* pixels, PackedColor color) {
    for (std::size_t i = 0; i < count; ++i) {
        running = wrappingSum(running, cells[i]);
        cells[i] = 0;
        blendPixel(pixels + 4 * i, color, coverageOf(running));
    }
    return running;
}

}  // namespace
}  // namespace marlevo
#endif

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {
namespace {

/// Blends cells as marlevo::blendCells does, a vector at a time.
class CellBlender {
public:
    explicit CellBlender(PackedColor color) : color_(color), blender_(color) {}

    std::int32_t blendCells(std::int32_t* HWY_RESTRICT cells, std::size_t count,
                            std::int32_t running, std::uint8_t* HWY_RESTRICT pixels) const {
        const std::size_t lanes = hn::Lanes(d32);
        std::size_t done = 0;
        auto before = hn::Set(dSum, running);
        for (; done + lanes <= count; done += lanes) {
            const auto sums = hn::Add(prefixSums(hn::LoadU(dSum, cells + done)), before);
            hn::StoreU(hn::Zero(dSum), dSum, cells + done);
            before = hn::TableLookupLanes(sums, hn::IndicesFromVec(dSum, hn::Set(dSum, last())));
            blender_.blend(coverageOf(sums), pixels + 4 * done);
        }
        running = hn::GetLane(before);
        return marlevo::blendCells(cells + done, count - done, running, pixels + 4 * done, color_);
    }

    void blendEvenly(std::uint8_t coverage, std::size_t count, std::uint8_t* pixels) const {
        const std::size_t lanes = hn::Lanes(d32);
        const auto cover = hn::Set(d32, std::uint32_t{coverage});
        std::size_t done = 0;
        for (; done + lanes <= count; done += lanes)
            blender_.blend(cover, pixels + 4 * done);
        for (; done < count; ++done)
            blendPixel(pixels + 4 * done, color_, coverage);
    }

private:
    using D32 = hn::ScalableTag<std::uint32_t>;
    using DSum = hn::RebindToSigned<D32>;
    using V32 = hn::VFromD<D32>;
    using VSum = hn::VFromD<DSum>;
    static constexpr D32 d32{};
    static constexpr DSum dSum{};

    static std::int32_t last() { return static_cast<std::int32_t>(hn::Lanes(d32)) - 1; }

    static VSum prefixSums(VSum v) {
        const auto lane = hn::Iota(dSum, 0);
        for (std::int32_t distance = 1; distance <= last(); distance *= 2) {
            const auto from = hn::Sub(lane, hn::Set(dSum, distance));
            const auto moved =
                hn::TableLookupLanes(v, hn::IndicesFromVec(dSum, hn::Max(from, hn::Zero(dSum))));
            v = hn::Add(v, hn::IfThenElseZero(hn::Gt(from, hn::Set(dSum, -1)), moved));
        }
        return v;
    }

    /// marlevo::coverageOf in each lane.
    static V32 coverageOf(VSum sums) {
        const auto magnitude = hn::Min(hn::BitCast(d32, hn::Abs(sums)), hn::Set(d32, fullSum));
        const auto scaled = hn::Sub(hn::ShiftLeft<8>(magnitude), magnitude);
        return hn::ShiftRight<17>(hn::Add(scaled, hn::Set(d32, fullSum / 2)));
    }

    PackedColor color_;
    ColorBlender<D32> blender_;
};

void blendRow(SumRow row, std::uint8_t* pixels, std::size_t count, PackedColor color) {
    const CellBlender blender(color);
    std::size_t done = 0;
    const auto blendGap = [&](std::size_t end) {
        const std::uint8_t coverage = coverageOf(row.running);
        if (coverage == 255)
            blendSolid(pixels + 4 * done, end - done, color);
        else if (coverage > 0)
            blender.blendEvenly(coverage, end - done, pixels + 4 * done);
        done = end;
    };
    for (std::size_t group = 0; group < row.markCount; group += markGroup) {
        std::uint64_t marks;
        std::memcpy(&marks, row.dirty + group, markGroup);
        if (marks == 0) continue;
        std::memset(row.dirty + group, 0, markGroup);
        while (marks != 0) {
            const int firstBit = std::countr_zero(marks);
            const int bits = std::countr_one(marks >> firstBit);
            marks &= firstBit + bits == 64 ? 0 : ~std::uint64_t{0} << (firstBit + bits);
            const std::size_t start =
                (group + static_cast<std::size_t>(firstBit) / 8) * cellsPerMark;
            const std::size_t end = start + static_cast<std::size_t>(bits) / 8 * cellsPerMark;
            if (start > done) blendGap(std::min(start, count));
            if (start < count) {
                done = std::min(end, count);
                row.running = blender.blendCells(row.cells + start, done - start, row.running,
                                                 pixels + 4 * start);
            }
            // The cells after the last pixel.
            if (end > count) std::fill(row.cells + std::max(start, count), row.cells + end, 0);
        }
    }
    if (done < count) blendGap(count);
}

}  // namespace
}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(blendRow);

void sweepRow(SumRow row, std::uint8_t* pixels, std::size_t count, PackedColor color) {
    HWY_DYNAMIC_DISPATCH(blendRow)(row, pixels, count, color);
}

}  // namespace marlevo
#endif
