#pragma once

#include "graphics/Color.h"
#include "graphics/PixelBuffer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace marlevo {

struct PackedColor {
    std::uint8_t bytes[4];
};

inline PackedColor packColor(const Color& c, double alpha, PixelOrder order) {
    const auto unit = [](double v) { return v > 0 ? std::min(v, 1.0) : 0.0; };
    const double a = unit(c.alpha) * unit(alpha);
    const auto byte = [](double v) { return static_cast<std::uint8_t>(v * 255 + 0.5); };
    const std::uint8_t A = byte(a), R = byte(unit(c.red) * a), G = byte(unit(c.green) * a),
                       B = byte(unit(c.blue) * a);
    return order == PixelOrder::argb ? PackedColor{{A, R, G, B}} : PackedColor{{B, G, R, A}};
}

inline unsigned div255(unsigned v) { return (v + 128 + ((v + 128) >> 8)) >> 8; }

inline void blendSpan(std::uint8_t* pixels, const std::uint8_t* coverage, std::size_t count,
                      PackedColor color) {
    const unsigned alpha = std::max(color.bytes[0], color.bytes[3]);
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned rest = 255 - div255(alpha * coverage[i]);
        for (int k = 0; k < 4; ++k)
            pixels[4 * i + k] = static_cast<std::uint8_t>(div255(color.bytes[k] * coverage[i]) +
                                                          div255(pixels[4 * i + k] * rest));
    }
}

inline void blendSolid(std::uint8_t* pixels, std::size_t count, PackedColor color) {
    const unsigned alpha = std::max(color.bytes[0], color.bytes[3]);
    for (std::size_t i = 0; i < 4 * count; ++i)
        pixels[i] =
            static_cast<std::uint8_t>(color.bytes[i & 3] + div255(pixels[i] * (255 - alpha)));
}

}  // namespace marlevo
