#include "render/RasterCompositing.h"

#include "graphics/BitmapContext.h"
#include "model/DrawingDocument.h"
#include "platform/ParallelFor.h"
#include "render/LayerPainting.h"
#include "render/LayerRun.h"
#include "render/MakeRaster.h"
#include "render/StrokePainting.h"
#include "render/VisibleStrokes.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace marlevo {

namespace {

constexpr int leastRowsOfBand = 64;
constexpr int maxBands = 8;

/// Parts of the picture for the threads to share.
std::vector<IntRect> bandsOf(const IntRect& picture) {
    const int rows = std::max((picture.height() + maxBands - 1) / maxBands, leastRowsOfBand);
    std::vector<IntRect> bands;
    for (int top = 0; top < picture.bottom; top += rows)
        bands.push_back({0, top, picture.right, std::min(top + rows, picture.bottom)});
    return bands;
}

}  // namespace

std::optional<RasterImage> renderPicture(const Picture& picture, ImageCache& images) {
    const CanvasSize canvas = picture.canvasSize;
    const auto size = RasterSize::truncating(canvas.width, canvas.height);
    if (!size) return std::nullopt;
    const double height = size->height;
    return makeRaster(*size, 0, [&](const PixelBuffer& pixels) {
        const Rect whole{{0, 0}, {static_cast<double>(size->width), height}};
        BitmapContext(pixels, DeviceFrame::yUp(height)).fillRect(whole, picture.background);
        images.decodeAhead(picture.layers);
        const auto decode = [&](const Bytes& file) { return images.image(file); };
        const std::vector<IntRect> bands = bandsOf(pixels.area);
        forEachRun(picture.layers, decode, [&](const LayerRun& run) {
            const VisibleStrokes strokes(run, pixels.area, 1);
            parallelFor(bands.size(), [&](std::size_t i) {
                BitmapContext context(pixels.part(bands[i]), DeviceFrame::yUp(height));
                drawLayerImageIfPresent(context, *run.layers.front(), canvas, height,
                                        [&](const Bytes&) { return run.image; });
                strokes.draw(context, [&](GraphicsContext& to, const Stroke& stroke) {
                    if (stroke.points.size() >= 2) drawStroke(to, stroke, height);
                });
            });
        });
    });
}

Picture pictureOf(const DrawingDocument& document) {
    return {document.layers, document.canvasSize,
            document.backgroundIsTransparent ? clear : *document.backgroundColor};
}

Scene sceneOf(const DrawingDocument& document, double scale) {
    const std::optional<Stroke>& stroke = document.currentStroke;
    return {pictureOf(document), document.showGrid, scale, stroke ? &*stroke : nullptr,
            document.selectionDragStartPositions->has_value()};
}

std::optional<RasterImage> renderCGImage(const DrawingDocument& document) {
    return renderPicture(pictureOf(document), BorrowedImages(document).cache());
}

std::optional<RasterImage> renderForFill(const DrawingDocument& document) {
    return renderCGImage(document);
}

std::optional<RasterImage> renderSingleLayer(const DrawingDocument& document, const Layer& layer,
                                             Size size) {
    BorrowedImages images(document);
    return renderLayer(layer, document.canvasSize, size,
                       [&](const Bytes& file) { return images.cache().image(file); });
}

BorrowedImages::BorrowedImages(const DrawingDocument& document)
    : own_(document.services().imageCodec), lent_(document.imageCache()) {}

}  // namespace marlevo
