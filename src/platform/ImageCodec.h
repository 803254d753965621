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

    /// The picture in an image file of any kind that the desktop reads, turned upright as the
    /// file's orientation says; nothing when the bytes are no image or would decode to more than
    /// `maxDecodedPixels`.
    virtual std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const = 0;

    /// The picture as an image file that says 72 pixels an inch, so a pixel is a point; nothing
    /// when the encoder fails.
    virtual std::optional<std::vector<std::uint8_t>> encode(const RasterImage& image,
                                                            Format format) const = 0;

    /// 256 megapixels: 1 GiB of pixels.
    static constexpr std::int64_t maxDecodedPixels = std::int64_t{1} << 28;
};

}  // namespace marlevo
