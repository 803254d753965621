#include "tools/MatchBlock.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "tools/MatchBlock.cpp"
#include <hwy/foreach_target.h>
// After foreach_target.h, which includes this file once for each instruction set.
#include <hwy/cache_control.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr std::size_t pixelsPerWord = 64;
constexpr std::size_t bytesPerPixel = 4;

/// At most 64 pixels, without vectors.
std::uint64_t matchPixels(std::span<const std::uint8_t> pixels, const ColorRange& range) {
    std::uint64_t matches = 0;
    for (std::size_t at = 0; at < pixels.size(); at += bytesPerPixel) {
        bool isInside = true;
        for (std::size_t byte = 0; byte < bytesPerPixel; ++byte) {
            isInside &=
                range.lowest[byte] <= pixels[at + byte] && pixels[at + byte] <= range.highest[byte];
        }
        matches |= std::uint64_t{isInside} << (at / bytesPerPixel);
    }
    return matches;
}

#if HWY_TARGET != HWY_SCALAR
/// A block with 64 columns.
void matchWholeRows(const PixelBlock& block, const ColorRange& range, BlockBits& bits) {
    const hn::CappedTag<std::uint32_t, pixelsPerWord> pixelTag;
    const hn::Repartition<std::uint8_t, decltype(pixelTag)> byteTag;
    using LaneBits = std::conditional_t<
        hn::MaxLanes(pixelTag) <= 8, std::uint8_t,
        std::conditional_t<hn::MaxLanes(pixelTag) <= 16, std::uint16_t, std::uint64_t>>;
    const std::size_t lanes = hn::Lanes(pixelTag);

    const auto splat = [&](const std::array<std::uint8_t, 4>& color) HWY_ATTR {
        std::uint32_t packed = 0;
        std::memcpy(&packed, color.data(), sizeof packed);
        return hn::BitCast(byteTag, hn::Set(pixelTag, packed));
    };
    const auto lowest = splat(range.lowest);
    const auto highest = splat(range.highest);

    // The rows are far apart in memory, so the processor does not prefetch them.
    constexpr std::size_t rowsAhead = 6;
    constexpr std::size_t cacheLine = 64;
    const std::uint8_t* from = block.pixels.data();
    for (std::size_t y = 0; y < static_cast<std::size_t>(block.height); ++y) {
        const bool isRowAhead = y + rowsAhead < static_cast<std::size_t>(block.height);
        for (std::size_t at = 0; isRowAhead && at < pixelsPerWord * bytesPerPixel; at += cacheLine)
            hwy::Prefetch(from + rowsAhead * block.rowBytes + at);
        std::uint64_t matches = 0;
        for (std::size_t at = 0; at < pixelsPerWord; at += lanes) {
            const auto bytes = hn::LoadU(byteTag, from + at * bytesPerPixel);
            const auto nearest = hn::Min(hn::Max(bytes, lowest), highest);
            const auto isInside =
                hn::Eq(hn::BitCast(pixelTag, nearest), hn::BitCast(pixelTag, bytes));
            // The buffer needs eight writable bytes. Reading no more bytes than were written keeps
            // the bits in a register.
            std::array<std::uint8_t, 8> laneBytes{};
            hn::StoreMaskBits(pixelTag, isInside, laneBytes.data());
            LaneBits laneBits = 0;
            std::memcpy(&laneBits, laneBytes.data(), sizeof laneBits);
            matches |= std::uint64_t{laneBits} << at;
        }
        bits[y] = matches;
        from += block.rowBytes;
    }
}
#endif

BlockBits matchBlock(const PixelBlock& block, const ColorRange& range) {
    BlockBits bits{};
    const auto width = static_cast<std::size_t>(block.width);
#if HWY_TARGET != HWY_SCALAR
    if (width == pixelsPerWord) {
        matchWholeRows(block, range, bits);
        return bits;
    }
#endif
    for (std::size_t y = 0; y < static_cast<std::size_t>(block.height); ++y)
        bits[y] =
            matchPixels(block.pixels.subspan(y * block.rowBytes, width * bytesPerPixel), range);
    return bits;
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(matchBlock);

ColorRange ColorRange::around(std::span<const std::uint8_t, 4> color, int tolerance) {
    const int reach = std::clamp(tolerance, 0, 255);
    ColorRange range;
    for (std::size_t byte = 0; byte < 4; ++byte) {
        range.lowest[byte] = static_cast<std::uint8_t>(std::max(0, color[byte] - reach));
        range.highest[byte] = static_cast<std::uint8_t>(std::min(255, color[byte] + reach));
    }
    return range;
}

BlockBits matchBlock(const PixelBlock& block, const ColorRange& range) {
    return HWY_DYNAMIC_DISPATCH(matchBlock)(block, range);
}

}  // namespace marlevo
#endif
