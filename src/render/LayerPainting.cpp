#include "render/LayerPainting.h"

#include "graphics/BitmapContext.h"
#include "render/MakeRaster.h"
#include "render/StrokePainting.h"

namespace marlevo {

void drawLayers(GraphicsContext& context, const LayerList& layers, CanvasSize canvas, double height,
                const ImageDecoder& decode) {
    for (const Layer& layer : layers)
        if (layer.isVisible) drawLayer(context, layer, canvas, height, decode);
}

void drawLayer(GraphicsContext& context, const Layer& layer, CanvasSize canvas, double height,
               const ImageDecoder& decode) {
    drawLayerImageIfPresent(context, layer, canvas, height, decode);
    for (const Stroke& stroke : layer.strokes) {
        if (stroke.points.size() >= 2) drawStroke(context, stroke, height);
    }
}

void drawLayerImageIfPresent(GraphicsContext& context, const Layer& layer, CanvasSize canvas,
                             double height, const ImageDecoder& decode) {
    if (!layer.imageData) return;
    const auto image = decode(*layer.imageData);
    if (!image) return;
    // The frame's origin is `height` below the picture's upper edge. A canvas of fractional height
    // extends below it.
    const Rect area{{0, height - canvas.height}, {canvas.width, canvas.height}};
    context.saveState();
    context.setAlpha(layer.opacity);
    context.drawImageFile(layer.imageData->span(), *image, area);
    context.restoreState();
}

std::optional<RasterImage> renderLayer(const Layer& layer, CanvasSize canvas, Size size,
                                       const ImageDecoder& decode) {
    const auto raster = RasterSize::truncating(size.width, size.height);
    if (!raster) return std::nullopt;
    constexpr std::uint8_t opaqueWhite = 255;
    return makeRaster(*raster, opaqueWhite, [&](const PixelBuffer& pixels) {
        BitmapContext context(pixels, DeviceFrame::yUp(raster->height));
        context.scale(size.width / canvas.width, size.height / canvas.height);
        drawLayer(context, layer, canvas, canvas.height, decode);
    });
}

}  // namespace marlevo
