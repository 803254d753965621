#pragma once

#include "graphics/PixelBuffer.h"

#include <cstdint>
#include <vector>

namespace marlevo {

/// A picture to draw on. At first all its bytes are `fill`.
class Canvas {
public:
    Canvas(int width, int height) : Canvas(IntRect{0, 0, width, height}) {}
    explicit Canvas(IntRect area, PixelOrder order = PixelOrder::argb, std::uint8_t fill = 0)
        : area_(area), order_(order), bytes_(static_cast<std::size_t>(area.area()) * 4, fill) {}

    PixelBuffer buffer() { return {bytes_.data(), 4 * area_.width(), area_, order_}; }
    /// The part of the picture in `area`, sharing its bytes.
    PixelBuffer part(const IntRect& area) { return buffer().part(area); }
    int alpha(int x, int y) { return *buffer().pixel(x, y); }
    const std::vector<std::uint8_t>& bytes() const { return bytes_; }

private:
    IntRect area_;
    PixelOrder order_;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace marlevo
