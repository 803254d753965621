#pragma once

#include "graphics/PixelBuffer.h"
#include "graphics/RasterImage.h"
#include "render/RasterSize.h"

#include <cstdint>
#include <new>
#include <optional>
#include <vector>

namespace marlevo {

/// Allocates a raster filled with one byte value and calls `draw` with its pixels. Nothing when
/// memory is short.
template <typename Draw>
std::optional<RasterImage> makeRaster(RasterSize size, std::uint8_t fill, Draw draw) {
    const std::ptrdiff_t stride = std::ptrdiff_t{size.width} * 4;
    std::vector<std::uint8_t> bytes;
    try {
        bytes.assign(static_cast<std::size_t>(stride) * static_cast<std::size_t>(size.height),
                     fill);
        draw(PixelBuffer{bytes.data(), stride, {0, 0, size.width, size.height}});
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    return RasterImage(size.width, size.height, std::move(bytes));
}

}  // namespace marlevo
