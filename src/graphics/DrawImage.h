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

/// Draws the whole image stretched into `rect`, its top row along rect.top.
void drawImage(const RasterImage& image, const DeviceRect& rect, double alpha,
               const PixelBuffer& target);

}  // namespace marlevo
