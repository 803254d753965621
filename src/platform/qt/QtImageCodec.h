#pragma once

#include "platform/ImageCodec.h"

namespace marlevo {

/// Image files through Qt's readers and writers, with the plug-ins that are installed.
///
/// Decoding converts pictures with a colour profile of their own to sRGB; of an animation it gives
/// the first picture. It prints nothing.
/// Encoding: PNG and TIFF keep every pixel, transparency included; JPEG (quality 90, colour at half
/// resolution, which is all that Qt's writer offers) and BMP know no transparency, so there the
/// picture is laid on white.
class QtImageCodec final : public ImageCodec {
public:
    /// Raises Qt's process-wide limit of memory for one decoded picture to `maxDecodedPixels`. The
    /// first codec of the program also replaces `stderr` (MutedStandardError.h).
    QtImageCodec();

    std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override;
    std::optional<std::vector<std::uint8_t>> encode(const RasterImage& image,
                                                    Format format) const override;
};

}  // namespace marlevo
