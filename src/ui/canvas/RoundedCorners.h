#pragma once

#include <QImage>
#include <QPoint>
#include <QSizeF>

namespace marlevo {

/// Makes everything outside a rounded rectangle transparent, anti-aliased.
///
/// The rectangle lies at the origin and is `size` large; `image` holds the part of the same plane
/// whose top left pixel is `imageOrigin`. All in device pixels.
void clipToRoundedRect(QImage& image, QPoint imageOrigin, QSizeF size, double radius);

}  // namespace marlevo
