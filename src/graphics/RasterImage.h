#pragma once

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
        : width_(width), height_(height),
          bytes_(std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes))) {}

    int width() const { return width_; }
    int height() const { return height_; }
    std::span<const std::uint8_t> bytes() const { return *bytes_; }

    /// The four bytes of the pixel in column `x` of row `y`.
    std::span<const std::uint8_t, bytesPerPixel> pixel(int x, int y) const {
        const std::size_t at = (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                                static_cast<std::size_t>(x)) *
                               bytesPerPixel;
        return std::span<const std::uint8_t, bytesPerPixel>(bytes_->data() + at, bytesPerPixel);
    }

    friend bool operator==(const RasterImage& a, const RasterImage& b) {
        return a.width_ == b.width_ && a.height_ == b.height_ &&
               (a.bytes_ == b.bytes_ || *a.bytes_ == *b.bytes_);
    }

private:
    int width_;
    int height_;
    std::shared_ptr<const std::vector<std::uint8_t>> bytes_;
};

}  // namespace marlevo
