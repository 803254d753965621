#pragma once

#include "graphics/PixelBuffer.h"
#include "graphics/RasterImage.h"

namespace marlevo {

/// A rectangle on the device plane with edges between pixels.
struct DeviceRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// Draws the whole image stretched into `rect`, its top row along rect.top, blended source-over at
/// `alpha` (0 to 1).
///
/// Each pixel is a weighted mean of the image around its centre, the weights a triangle as wide as
/// two image pixels or two device pixels, whichever is more: bilinear when enlarging, free of
/// aliasing when reducing, an exact copy at scale 1 on whole pixels. Pixels that the rectangle
/// covers in part are blended in part. A pixel gets the same bytes whatever part of the plane
/// `target` is. A rectangle that is empty or not finite draws nothing.
void drawImage(const RasterImage& image, const DeviceRect& rect, double alpha,
               const PixelBuffer& target);

}  // namespace marlevo
