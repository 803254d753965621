#pragma once

#include "platform/ImageCodec.h"

namespace marlevo {

/// Image files through Qt's readers and writers.
///
/// Decodes PNG, JPEG, TIFF, BMP, GIF, WebP, ICO and SVG; AVIF, HEIF and JPEG XL where their
/// plug-ins are installed. The plug-ins of other formats are not used. Decoding opens no file.
///
/// Decoding converts pictures with another colour profile to sRGB, and decodes only the first
/// picture of an animation. It prints nothing.
///
/// Encoding: PNG and TIFF keep all pixels with their transparency. JPEG and BMP have no
/// transparency, so the picture is put on white. JPEG has quality 90 and colour at half resolution:
/// Qt's writer offers no other.
class QtImageCodec final : public ImageCodec {
public:
    /// Sets Qt's process-wide limit of memory for one decoded picture to `maxDecodedPixels`. The
    /// first codec of the program also replaces `stderr` (MutedStandardError.h).
    QtImageCodec();

    std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override;
    std::optional<std::vector<std::uint8_t>> encode(const RasterImage& image,
                                                    Format format) const override;
};

}  // namespace marlevo
