#include "render/RasterCompositing.h"

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

std::optional<RasterImage> renderCGImage(const DrawingDocument& document) {
    const CanvasSize canvas = document.canvasSize;
    const auto size = RasterSize::truncating(canvas.width, canvas.height);
    if (!size) return std::nullopt;
    const double height = size->height;
    return makeRaster(*size, 0, [&](const PixelBuffer& picture) {
        if (!document.backgroundIsTransparent) {
            const Rect whole{{0, 0}, {static_cast<double>(size->width), height}};
            BitmapContext(picture, DeviceFrame::yUp(height))
                .fillRect(whole, document.backgroundColor);
        }
        DecodedImages& images = document.decodedImages();
        images.decodeAhead(document.layers);
        const auto decode = [&](const Bytes& file) { return images.image(file); };
        const std::vector<IntRect> bands = bandsOf(picture.area);
        forEachRun(document.layers, decode, [&](const LayerRun& run) {
            const StrokesInSight strokes(run, picture.area, 1);
            // The threads read values only, not the document.
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

std::optional<RasterImage> renderForFill(const DrawingDocument& document) {
    return renderCGImage(document);
}

std::optional<RasterImage> renderSingleLayer(const DrawingDocument& document, const Layer& layer,
                                             Size size) {
    return renderLayer(layer, document.canvasSize, size,
                       [&](const Bytes& file) { return document.decodedImages().image(file); });
}

}  // namespace marlevo
