#pragma once

#include "graphics/RasterImage.h"

#include <QImage>

namespace marlevo {

/// The picture as one of Qt's, premultiplied, at 72 pixels an inch; null when there is no memory
/// for it.
QImage qImageFrom(const RasterImage& raster);

/// The pixels of an image in QImage::Format_ARGB32_Premultiplied.
RasterImage rasterFrom(const QImage& image);

/// The image laid on white, without alpha, at 72 pixels an inch; null when it is or there is no
/// memory.
QImage onWhite(const QImage& image);

}  // namespace marlevo
