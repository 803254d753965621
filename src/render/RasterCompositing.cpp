#include "graphics/BitmapContext.h"
#include "model/DrawingDocument.h"
#include "render/RasterSize.h"
#include "render/StrokeGeometry.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <span>
#include <vector>

namespace marlevo {

namespace {

/// The shape rectangle of a stroke, mirrored into the frame whose y grows upwards.
Rect flippedCGRect(std::span<const Point> points, double height) {
    if (points.size() < 2) return {};
    const Point a = points[0];
    const Point b = points[1];
    return {{std::min(a.x, b.x), height - std::max(a.y, b.y)},
            {std::abs(b.x - a.x), std::abs(b.y - a.y)}};
}

/// Allocates a raster filled with one byte value and lets `draw` paint on it; nothing when there
/// is not enough memory.
template <typename Draw>
std::optional<RasterImage> makeRaster(RasterSize size, std::uint8_t fill, Draw draw) {
    const std::ptrdiff_t stride = std::ptrdiff_t{size.width} * 4;
    std::vector<std::uint8_t> bytes;
    try {
        bytes.assign(static_cast<std::size_t>(stride) * static_cast<std::size_t>(size.height),
                     fill);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    BitmapContext context({bytes.data(), stride, {0, 0, size.width, size.height}},
                          DeviceFrame::yUp(size.height));
    draw(context);
    return RasterImage(size.width, size.height, std::move(bytes));
}

}  // namespace

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
    const auto raster = RasterSize::truncating(size.width, size.height);
    if (!raster) return std::nullopt;
    const CanvasSize canvas = canvasSize;
    return makeRaster(*raster, 255, [&](GraphicsContext& context) {
        context.scale(size.width / canvas.width, size.height / canvas.height);
        drawLayer(context, layer, canvas.height);
    });
}

void DrawingDocument::drawLayers(GraphicsContext& context, double height) const {
    for (const Layer& layer : *layers) {
        if (layer.isVisible) drawLayer(context, layer, height);
    }
}

void DrawingDocument::drawLayer(GraphicsContext& context, const Layer& layer, double height) const {
    drawLayerImageIfPresent(context, layer, height);
    for (const Stroke& stroke : layer.strokes) {
        if (stroke.points.size() >= 2) drawStroke(context, stroke, height);
    }
}

void DrawingDocument::drawLayerImageIfPresent(GraphicsContext& context, const Layer& layer,
                                              double height) const {
    if (!layer.imageData) return;
    const auto image = decodedImages_.image(*layer.imageData);
    if (!image) return;
    // The frame's origin lies `height` below the picture's upper edge, which a fractional canvas
    // overhangs at the bottom.
    const Rect canvas{{0, height - canvasSize->height}, {canvasSize->width, canvasSize->height}};
    context.saveState();
    context.setAlpha(layer.opacity);
    context.drawImage(*image, canvas);
    context.restoreState();
}

void DrawingDocument::drawStroke(GraphicsContext& context, const Stroke& stroke,
                                 double height) const {
    const auto flip = [height](Point p) { return Point{p.x, height - p.y}; };
    const auto points = stroke.points.span();
    Path path;
    switch (stroke.shapeType) {
    case Stroke::ShapeType::freehand:
        addFreehandCurve(path, points, flip);
        break;
    case Stroke::ShapeType::line:
        path.move(flip(points[0]));
        path.addLine(flip(points[1]));
        break;
    case Stroke::ShapeType::rect:
        path.addRect(flippedCGRect(points, height));
        break;
    case Stroke::ShapeType::ellipse:
        path.addEllipse(flippedCGRect(points, height));
        break;
    }
    context.setAlpha(stroke.opacity);
    if (stroke.isFill) {
        context.fillPath(path, stroke.color);
    } else {
        context.strokePath(path, stroke.color, stroke.lineWidth);
    }
    context.setAlpha(1);
}

}  // namespace marlevo
