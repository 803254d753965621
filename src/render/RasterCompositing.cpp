#include "graphics/BitmapContext.h"
#include "model/DrawingDocument.h"
#include "platform/ParallelFor.h"
#include "render/LayerPainting.h"
#include "render/LayerRun.h"
#include "render/MakeRaster.h"
#include "render/StrokesInSight.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace marlevo {

namespace {

constexpr int leastRowsOfBand = 64;
constexpr int maxBands = 8;

/// The picture in bands, which threads may paint.
std::vector<IntRect> bandsOf(const IntRect& picture) {
    const int rows = std::max((picture.height() + maxBands - 1) / maxBands, leastRowsOfBand);
    std::vector<IntRect> bands;
    for (int top = 0; top < picture.bottom; top += rows)
        bands.push_back({0, top, picture.right, std::min(top + rows, picture.bottom)});
    return bands;
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
        decodedImages_.decodeAhead(layers);
        // Workers see values only, never the document.
        const CanvasSize canvas = canvasSize;
        const auto decode = [this](const Bytes& file) { return decodedImages_.image(file); };
        const std::vector<IntRect> bands = bandsOf(picture.area);
        forEachRun(layers, decode, [&](const LayerRun& run) {
            const StrokesInSight strokes(run, picture.area, 1);
            parallelFor(bands.size(), [&](std::size_t i) {
                BitmapContext context(picture.part(bands[i]), DeviceFrame::yUp(height));
                drawLayerImageIfPresent(context, *run.layers.front(), canvas, height,
                                        [&](const Bytes&) { return run.image; });
                strokes.draw(context, [&](GraphicsContext& to, const Stroke& stroke) {
                    if (stroke.points.size() >= 2) drawStroke(to, stroke, height);
                });
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
