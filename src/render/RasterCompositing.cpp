#include "graphics/BitmapContext.h"
#include "model/DrawingDocument.h"
#include "platform/ParallelFor.h"
#include "render/LayerPainting.h"
#include "render/LayerRun.h"
#include "render/MakeRaster.h"
#include "render/PaintedArea.h"

#include <algorithm>
#include <cstddef>

namespace marlevo {

namespace {

constexpr int leastRowsOfBand = 64;
constexpr int maxBands = 8;

/// Cuts the picture into bands, which threads may paint, and calls paint(band) with each.
template <typename Paint>
void paintInBands(const PixelBuffer& picture, Paint paint) {
    const int height = picture.area.height();
    const int rows = std::max((height + maxBands - 1) / maxBands, leastRowsOfBand);
    const int count = (height + rows - 1) / rows;
    parallelFor(static_cast<std::size_t>(count), [&](std::size_t i) {
        const int top = static_cast<int>(i) * rows;
        paint(picture.part({0, top, picture.area.right, std::min(top + rows, height)}));
    });
}

/// The strokes that may paint in the band.
void drawStrokes(GraphicsContext& context, const Layer& layer, const IntRect& band, double height) {
    const Rect seen{{double(band.left), double(band.top)},
                    {double(band.width()), double(band.height())}};
    layer.strokes.visitNear(seen, penFringe, [&](std::size_t, const Stroke& stroke) {
        if (stroke.points.size() >= 2) drawStroke(context, stroke, height);
        return true;
    });
}

}  // namespace

std::optional<RasterImage> DrawingDocument::renderCGImage() const {
    const auto size = RasterSize::truncating(canvasSize->width, canvasSize->height);
    if (!size) return std::nullopt;
    const double height = size->height;
    return makeRaster(*size, 0, [&](const PixelBuffer& picture) {
        if (!backgroundIsTransparent) {
            const Rect whole{{0, 0}, {static_cast<double>(size->width), height}};
            BitmapContext(picture, DeviceFrame::yUp(height)).fillRect(whole, backgroundColor);
        }
        // Workers see values only, never the document.
        const CanvasSize canvas = canvasSize;
        const auto decode = [this](const Bytes& file) { return decodedImages_.image(file); };
        forEachRun(layers, decode, [&](const LayerRun& run) {
            paintInBands(picture, [&](const PixelBuffer& band) {
                BitmapContext context(band, DeviceFrame::yUp(height));
                for (const Layer* layer : run.layers) {
                    drawLayerImageIfPresent(context, *layer, canvas, height,
                                            [&](const Bytes&) { return run.image; });
                    drawStrokes(context, *layer, band.area, height);
                }
            });
        });
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
