#include "tools/MatchRow.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "tools/MatchRow.cpp"
#include <hwy/foreach_target.h>
// After foreach_target.h, which includes this file once for each instruction set.
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr std::size_t pixelsPerWord = 64;
constexpr std::size_t bytesPerWord = pixelsPerWord * 4;

/// At most 64 pixels, without vectors.
std::uint64_t matchPixels(std::span<const std::uint8_t> pixels, const ColorRange& range) {
    std::uint64_t matches = 0;
    for (std::size_t at = 0; at < pixels.size(); at += 4) {
        bool isInside = true;
        for (std::size_t byte = 0; byte < 4; ++byte) {
            isInside &=
                range.lowest[byte] <= pixels[at + byte] && pixels[at + byte] <= range.highest[byte];
        }
        matches |= std::uint64_t{isInside} << (at / 4);
    }
    return matches;
}

#if HWY_TARGET != HWY_SCALAR
/// Writes the words that have all their 64 pixels; returns how many those are.
std::size_t matchWholeWords(std::span<const std::uint8_t> pixels, const ColorRange& range,
                            std::span<std::uint64_t> bits) {
    const hn::CappedTag<std::uint32_t, pixelsPerWord> pixelTag;
    const hn::Repartition<std::uint8_t, decltype(pixelTag)> byteTag;
    using LaneBits = std::conditional_t<
        hn::MaxLanes(pixelTag) <= 8, std::uint8_t,
        std::conditional_t<hn::MaxLanes(pixelTag) <= 16, std::uint16_t, std::uint64_t>>;
    const std::size_t lanes = hn::Lanes(pixelTag);
    const std::size_t words = pixels.size() / bytesPerWord;

    const auto splat = [&](const std::array<std::uint8_t, 4>& color) HWY_ATTR {
        std::uint32_t packed = 0;
        std::memcpy(&packed, color.data(), sizeof packed);
        return hn::BitCast(byteTag, hn::Set(pixelTag, packed));
    };
    const auto lowest = splat(range.lowest);
    const auto highest = splat(range.highest);

    for (std::size_t word = 0; word < words; ++word) {
        const std::uint8_t* from = pixels.data() + word * bytesPerWord;
        std::uint64_t matches = 0;
        for (std::size_t at = 0; at < pixelsPerWord; at += lanes) {
            const auto bytes = hn::LoadU(byteTag, from + at * 4);
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
        bits[word] = matches;
    }
    return words;
}
#endif

void matchRow(std::span<const std::uint8_t> pixels, const ColorRange& range,
              std::span<std::uint64_t> bits) {
    std::size_t word = 0;
#if HWY_TARGET != HWY_SCALAR
    word = matchWholeWords(pixels, range, bits);
#endif
    for (; word < bits.size(); ++word) {
        const std::span<const std::uint8_t> rest = pixels.subspan(word * bytesPerWord);
        bits[word] = matchPixels(rest.first(std::min(rest.size(), bytesPerWord)), range);
    }
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(matchRow);

ColorRange ColorRange::around(std::span<const std::uint8_t, 4> color, int tolerance) {
    const int reach = std::clamp(tolerance, 0, 255);
    ColorRange range;
    for (std::size_t byte = 0; byte < 4; ++byte) {
        range.lowest[byte] = static_cast<std::uint8_t>(std::max(0, color[byte] - reach));
        range.highest[byte] = static_cast<std::uint8_t>(std::min(255, color[byte] + reach));
    }
    return range;
}

void matchRow(std::span<const std::uint8_t> pixels, const ColorRange& range,
              std::span<std::uint64_t> bits) {
    HWY_DYNAMIC_DISPATCH(matchRow)(pixels, range, bits);
}

}  // namespace marlevo
#endif
