#include "tools/EyeDropper.h"

#include "model/DrawingDocument.h"
#include "render/RasterCompositing.h"
#include "tools/PixelAddress.h"

namespace marlevo {

void pickColor(DrawingDocument& document, Point at) {
    const auto image = renderCGImage(document);
    if (!image) return;
    const auto address = pixelAddress(at, *image);
    if (!address) return;
    const auto pixel = image->pixel(address->column, address->row);
    // The stored bytes are premultiplied by alpha. They are used unchanged, and the colour is
    // opaque.
    document.selectedColor = Color{pixel[1] / 255.0, pixel[2] / 255.0, pixel[3] / 255.0, 1};
    document.isEyeDropper = false;
}

}  // namespace marlevo
