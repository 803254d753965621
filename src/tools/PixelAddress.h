#pragma once

#include "graphics/Point.h"
#include "graphics/RasterImage.h"

#include <optional>

namespace marlevo {

/// A pixel of a raster; row 0 is the top row.
struct PixelAddress {
    int column;
    int row;
};

/// The pixel at a canvas point: coordinates are truncated toward zero, so that −0.5 is still in the
/// first column. Absent outside the picture.
inline std::optional<PixelAddress> pixelAddress(Point p, const RasterImage& image) {
    if (!(p.x > -1 && p.y > -1 && p.x < image.width() && p.y < image.height())) return std::nullopt;
    return PixelAddress{static_cast<int>(p.x), static_cast<int>(p.y)};
}

}  // namespace marlevo
