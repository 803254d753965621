#pragma once

#include <QImage>
#include <QPoint>
#include <QSizeF>

namespace marlevo {

/// Makes everything outside a rounded rectangle transparent, anti-aliased.
///
/// The rectangle starts at the origin and has the size `size`; `image` is a part of the same plane,
/// and `imageOrigin` is the position of its top left pixel. All in device pixels.
void clipToRoundedRect(QImage& image, QPoint imageOrigin, QSizeF size, double radius);

}  // namespace marlevo
