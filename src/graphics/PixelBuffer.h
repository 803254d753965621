#pragma once

#include "graphics/IntRect.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// The order of a premultiplied pixel's bytes in memory.
enum class PixelOrder : unsigned char {
    argb,  ///< the program's pictures
    bgra,  ///< the screen's images
};

/// Caller-owned pixels that hold the part `area` of a device plane whose row 0 is on top.
/// `bytes` points to the pixel (area.left, area.top); rows are `stride` bytes apart.
struct PixelBuffer {
    std::uint8_t* bytes = nullptr;
    std::ptrdiff_t stride = 0;
    IntRect area;
    PixelOrder order = PixelOrder::argb;

    std::uint8_t* pixel(int x, int y) const {
        return bytes + (y - area.top) * stride + std::ptrdiff_t{4} * (x - area.left);
    }

    /// The same pixels, of which only those in `within`, a part of the area, may be touched.
    PixelBuffer part(const IntRect& within) const {
        return {pixel(within.left, within.top), stride, within, order};
    }
};

/// Caller-owned coverages, 0 to 255, of the pixels in the part `area` of a device plane. `bytes`
/// points to the coverage of pixel (area.left, area.top); rows are `stride` bytes apart.
struct CoverageMask {
    std::uint8_t* bytes = nullptr;
    std::ptrdiff_t stride = 0;
    IntRect area;

    std::uint8_t* pixel(int x, int y) const {
        return bytes + (y - area.top) * stride + (x - area.left);
    }
};

}  // namespace marlevo
