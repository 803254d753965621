#pragma once

#include "graphics/IntRect.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// Caller-owned coverages, 0 to 255, of the pixels in the part `area` of the device plane. `bytes`
/// points to that of the pixel (area.left, area.top); rows are `stride` bytes apart.
struct CoverageMask {
    std::uint8_t* bytes = nullptr;
    std::ptrdiff_t stride = 0;
    IntRect area;

    std::uint8_t* pixel(int x, int y) const {
        return bytes + (y - area.top) * stride + (x - area.left);
    }
};

}  // namespace marlevo
