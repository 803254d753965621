#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace marlevo {

/// The properties that a page states of a JPEG file that it embeds unchanged.
struct EmbeddableJpeg {
    int width;  ///< as stored, before the orientation turns it
    int height;
    bool isGray;      ///< one component, else three
    int orientation;  ///< as in TIFF 6.0 and Exif: 1 to 8, 1 being upright

    /// Nothing if the file is no JPEG, or if page readers would show it in other colours than image
    /// programs do, or not at all. An embeddable file is complete, has 8 bits per component,
    /// sequential or progressive Huffman code, is grey or YCbCr, and names no colour space but
    /// sRGB.
    static std::optional<EmbeddableJpeg> recognise(std::span<const std::uint8_t> file);
};

}  // namespace marlevo
