#pragma once

#include "graphics/Bounds.h"
#include "graphics/PixelBuffer.h"
#include "graphics/RasterImage.h"

namespace marlevo {

/// Draws the whole image stretched into `rect` on the device plane, its top row along rect.top,
/// blended source-over at `alpha` (0 to 1).
///
/// Each pixel is a weighted mean of the image around its centre. The weights are a triangle as wide
/// as two image pixels or two device pixels, whichever is more: bilinear when enlarging, free of
/// aliasing when reducing, an exact copy at scale 1 on whole pixels. Pixels that the rectangle
/// covers in part are blended in part. A pixel gets the same bytes whatever part of the plane
/// `target` is. A rectangle that is empty or not finite draws nothing.
void drawImage(const RasterImage& image, const Bounds& rect, double alpha,
               const PixelBuffer& target);

}  // namespace marlevo
