#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace marlevo {

/// An immutable picture; copies share its pixels.
///
/// Four bytes a pixel in the order alpha, red, green, blue, the colour premultiplied by alpha;
/// row 0 is the top row; rows follow each other without gaps.
class RasterImage {
public:
    static constexpr std::size_t bytesPerPixel = 4;

    /// `bytes` must hold exactly width × height pixels; both sides are at least 1.
    RasterImage(int width, int height, std::vector<std::uint8_t> bytes)
        : RasterImage(width, height,
                      std::make_shared<std::vector<std::uint8_t>>(std::move(bytes))) {}

    /// Shares pixels of another type of memory. `owner` keeps `bytes` alive and unchanged.
    RasterImage(int width, int height, std::span<const std::uint8_t> bytes,
                std::shared_ptr<const void> owner)
        : width_(width), height_(height), bytes_(bytes), owner_(std::move(owner)) {}

    int width() const { return width_; }
    int height() const { return height_; }
    std::span<const std::uint8_t> bytes() const { return bytes_; }

    /// The four bytes of the pixel in column `x` of row `y`.
    std::span<const std::uint8_t, bytesPerPixel> pixel(int x, int y) const {
        const std::size_t at = (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                                static_cast<std::size_t>(x)) *
                               bytesPerPixel;
        return std::span<const std::uint8_t, bytesPerPixel>(bytes_.data() + at, bytesPerPixel);
    }

    friend bool operator==(const RasterImage& a, const RasterImage& b) {
        return a.width_ == b.width_ && a.height_ == b.height_ &&
               (a.bytes_.data() == b.bytes_.data() || std::ranges::equal(a.bytes_, b.bytes_));
    }

private:
    using Vector = std::shared_ptr<std::vector<std::uint8_t>>;

    RasterImage(int width, int height, const Vector& bytes)
        : RasterImage(width, height, std::span<const std::uint8_t>(*bytes), bytes) {}

    int width_;
    int height_;
    std::span<const std::uint8_t> bytes_;
    std::shared_ptr<const void> owner_;
};

}  // namespace marlevo
