#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace marlevo {

/// What a page has to know of a JPEG file that it holds as it is.
struct EmbeddableJpeg {
    int width;  ///< as stored, before the orientation turns it
    int height;
    int orientation;  ///< as in TIFF 6.0 and Exif: 1 to 8, 1 being upright

    /// Nothing when the file is no JPEG, or one that page readers would show in other colours than
    /// image programs do, or not at all. Those that can be kept are complete, in 8 bits, sequential
    /// or progressive Huffman code, grey or YCbCr, and in sRGB as far as they name a colour space.
    static std::optional<EmbeddableJpeg> recognise(std::span<const std::uint8_t> file);
};

}  // namespace marlevo
