#pragma once

#include "graphics/RasterImage.h"

#include <QImage>

namespace marlevo {

/// The picture as a premultiplied QImage at 72 pixels an inch. Null if there is no memory for it.
QImage qImageFrom(const RasterImage& raster);

/// Takes the pixels of an image in QImage::Format_ARGB32_Premultiplied. Copies them only if the
/// image shares them.
RasterImage rasterFrom(QImage image);

/// The image on white, without alpha, at 72 pixels an inch. Null if the image is null or if there
/// is no memory for the result.
QImage onWhite(const QImage& image);

}  // namespace marlevo
