#pragma once

#include <cstdint>
#include <optional>

namespace marlevo {

/// Width and height of a raster in whole pixels, both at least 1.
struct RasterSize {
    /// 4 GiB of bytes.
    static constexpr std::int64_t maxPixels = std::int64_t{1} << 30;

    int width;
    int height;

    /// Both sides truncated toward zero. Nothing if one of them is then below 1 or is NaN, or if
    /// the raster has more than `maxPixels`.
    static std::optional<RasterSize> truncating(double width, double height) {
        const double most = static_cast<double>(maxPixels);
        if (!(width >= 1 && height >= 1 && width <= most && height <= most)) return std::nullopt;
        const auto columns = static_cast<std::int64_t>(width);
        const auto rows = static_cast<std::int64_t>(height);
        if (columns * rows > maxPixels) return std::nullopt;
        return RasterSize{static_cast<int>(columns), static_cast<int>(rows)};
    }
};

}  // namespace marlevo
