#pragma once

#include "graphics/Color.h"
#include "graphics/PixelBuffer.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace marlevo {

/// The greatest number of pixels that are blended at once.
inline constexpr std::size_t maxPixelsPerVector = 16;

/// a · b / 255 for a and b from 0 to 255, rounded to nearest.
constexpr std::uint8_t mulDiv255(unsigned a, unsigned b) {
    return static_cast<std::uint8_t>((a * b + 128) * 257 >> 16);
}

/// A premultiplied colour as a pixel's four bytes in memory.
struct PackedColor {
    std::array<std::uint8_t, 4> bytes{};
    std::uint8_t alpha = 0;  ///< one of `bytes`

    /// The colour that blends a whole pixel as this one blends a pixel with that coverage.
    constexpr PackedColor coveredBy(std::uint8_t coverage) const {
        const auto part = [&](std::uint8_t byte) { return mulDiv255(byte, coverage); };
        return {{part(bytes[0]), part(bytes[1]), part(bytes[2]), part(bytes[3])}, part(alpha)};
    }

    friend bool operator==(const PackedColor&, const PackedColor&) = default;
};

/// The colour at `alpha` times its own alpha, each byte rounded to nearest.
/// Components and alphas are clamped to 0 … 1; one that is not a number counts as 0.
PackedColor packColor(const Color& color, double alpha, PixelOrder order);

/// Source-over for one byte of a premultiplied pixel: byte · (1 − alpha · coverage) + color ·
/// coverage, each product rounded to nearest. The formula is the same for colours and alpha, so
/// that it holds for either order of a pixel's bytes.
constexpr std::uint8_t blendByte(std::uint8_t byte, std::uint8_t color, std::uint8_t alpha,
                                 std::uint8_t coverage) {
    const unsigned keep = 255U - mulDiv255(alpha, coverage);
    return static_cast<std::uint8_t>(mulDiv255(color, coverage) + mulDiv255(byte, keep));
}

inline void blendPixel(std::uint8_t* pixel, PackedColor color, std::uint8_t coverage) {
    for (std::size_t i = 0; i < color.bytes.size(); ++i) {
        pixel[i] = blendByte(pixel[i], color.bytes[i], color.alpha, coverage);
    }
}

/// Blends `color` onto `count` pixels, each with its own coverage.
void blendSpan(std::uint8_t* pixels, const std::uint8_t* coverage, std::size_t count,
               PackedColor color);

/// Blends `color` onto `count` pixels, all fully covered.
void blendSolid(std::uint8_t* pixels, std::size_t count, PackedColor color);

}  // namespace marlevo
