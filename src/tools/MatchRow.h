#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace marlevo {

/// The colours a pixel may have to match: a range for each of its four bytes, ends included.
struct ColorRange {
    std::array<std::uint8_t, 4> lowest{};
    std::array<std::uint8_t, 4> highest{};

    /// All colours that differ by at most `tolerance` from `color` in each byte.
    static ColorRange around(std::span<const std::uint8_t, 4> color, int tolerance);
};

/// Sets bit x % 64 of word x / 64 exactly when pixel x of the row lies in the range.
/// `pixels` holds four bytes a pixel; `bits` holds one word for each 64 pixels begun, and its bits
/// past the last pixel become zero.
void matchRow(std::span<const std::uint8_t> pixels, const ColorRange& range,
              std::span<std::uint64_t> bits);

}  // namespace marlevo
