#pragma once

#include "graphics/RasterImage.h"
#include "io/EmbeddableJpeg.h"
#include "io/PdfFile.h"

namespace marlevo {

/// Adds the picture's pixels to the file as an image, without loss, and its alpha where it is not
/// opaque.
PdfFile::Object addPdfImage(PdfFile& file, const RasterImage& image);

/// Adds the JPEG file as an image, byte for byte.
PdfFile::Object addPdfImage(PdfFile& file, const EmbeddableJpeg& jpeg,
                            std::span<const std::uint8_t> bytes);

}  // namespace marlevo
