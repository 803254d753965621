#pragma once

#include "graphics/IntRect.h"
#include "graphics/PixelBuffer.h"

#include <QImage>
#include <QRect>

#include <cmath>

namespace marlevo {

inline IntRect toIntRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

inline QRectF toQRect(const IntRect& rect) {
    return QRectF(rect.left, rect.top, rect.width(), rect.height());
}

/// The points of a view that an area touches. `devicePixels` counts from the canvas's top left
/// corner, which is the view's; the canvas is drawn at a whole device pixel, up to half a pixel
/// beside that corner if the scale factor is fractional.
inline QRect touchedPoints(const QRectF& devicePixels, double scaleFactor) {
    const double margin = scaleFactor == std::floor(scaleFactor) ? 0 : 1;
    const QRectF touched = devicePixels.adjusted(-margin, -margin, margin, margin);
    return QRectF(touched.topLeft() / scaleFactor, touched.size() / scaleFactor).toAlignedRect();
}

/// The pixels of a premultiplied 32-bit image to paint into. `origin` is the position of the top
/// left one in the picture. The image must outlive the result.
inline PixelBuffer pixelsOf(QImage& image, QPoint origin) {
    return {image.bits(), image.bytesPerLine(), toIntRect(QRect(origin, image.size())),
            PixelOrder::bgra};
}

}  // namespace marlevo
