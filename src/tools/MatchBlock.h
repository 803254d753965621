#pragma once

#include <array>
#include <cstddef>
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

/// A block of at most 64 × 64 pixels within a picture.
struct PixelBlock {
    std::span<const std::uint8_t> pixels;  ///< from the block's first pixel to the picture's end
    std::size_t rowBytes;                  ///< of the whole picture
    int width;
    int height;
};

/// One bit for each pixel of a block: column x of row y is bit x of word y. The other bits are
/// zero.
using BlockBits = std::array<std::uint64_t, 64>;

/// The pixels of the block whose colours are in the range.
BlockBits matchBlock(const PixelBlock& block, const ColorRange& range);

}  // namespace marlevo
