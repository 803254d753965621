#pragma once

#include "graphics/IntRect.h"
#include "graphics/PixelBuffer.h"

#include <QImage>
#include <QRect>

namespace marlevo {

inline IntRect toIntRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

inline QRectF toQRect(const IntRect& rect) {
    return QRectF(rect.left, rect.top, rect.width(), rect.height());
}

/// The pixels of a premultiplied 32-bit image to paint into. `origin` is the position of the top
/// left one in the picture. The image must outlive the result.
inline PixelBuffer pixelsOf(QImage& image, QPoint origin) {
    return {image.bits(), image.bytesPerLine(), toIntRect(QRect(origin, image.size())),
            PixelOrder::bgra};
}

}  // namespace marlevo
