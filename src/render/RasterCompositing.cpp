#include "model/DrawingDocument.h"
#include "render/LayerPainting.h"
#include "render/MakeRaster.h"

namespace marlevo {

std::optional<RasterImage> DrawingDocument::renderCGImage() const {
    const auto size = RasterSize::truncating(canvasSize->width, canvasSize->height);
    if (!size) return std::nullopt;
    return makeRaster(*size, 0, [&](GraphicsContext& context) {
        const double height = size->height;
        if (!backgroundIsTransparent) {
            context.fillRect({{0, 0}, {static_cast<double>(size->width), height}}, backgroundColor);
        }
        drawLayers(context, height);
    });
}

std::optional<RasterImage> DrawingDocument::renderForFill() const {
    // A transparent background leaves the zeroed bytes as they are: the very picture of an export.
    return renderCGImage();
}

std::optional<RasterImage> DrawingDocument::renderSingleLayer(const Layer& layer, Size size) const {
    return renderLayer(layer, canvasSize, size,
                       [this](const Bytes& file) { return decodedImages_.image(file); });
}

void DrawingDocument::drawLayers(GraphicsContext& context, double height) const {
    for (const Layer& layer : *layers) {
        if (!layer.isVisible) continue;
        drawLayer(context, layer, canvasSize, height,
                  [this](const Bytes& file) { return decodedImages_.image(file); });
    }
}

}  // namespace marlevo
