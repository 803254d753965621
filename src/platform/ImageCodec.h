#pragma once

#include "graphics/RasterImage.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace marlevo {

/// Reads and writes image files. Callable on any thread.
class ImageCodec {
public:
    enum class Format : unsigned char { png, jpeg, tiff, bmp };

    virtual ~ImageCodec() = default;

    /// Decodes an image file. The implementation names the formats. The result is upright: the
    /// file's orientation is applied. Nothing if the bytes are not an image, or if it has more than
    /// `maxDecodedPixels`.
    virtual std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const = 0;

    /// Encodes the picture at a resolution of 72 pixels an inch, so that a pixel is a point.
    /// Nothing if the encoder fails.
    virtual std::optional<std::vector<std::uint8_t>> encode(const RasterImage& image,
                                                            Format format) const = 0;

    /// 128 megapixels: 512 MiB of pixels. Photographs of 108 megapixels exist.
    static constexpr std::int64_t maxDecodedPixels = std::int64_t{1} << 27;
};

}  // namespace marlevo
