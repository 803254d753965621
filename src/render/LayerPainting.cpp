#include "render/LayerPainting.h"

#include "graphics/BitmapContext.h"
#include "model/StrokeGeometry.h"
#include "render/MakeRaster.h"

#include <algorithm>
#include <cmath>
#include <span>

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

Path pathOfStroke(const Stroke& stroke, double height) {
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
    return path;
}

}  // namespace

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
    // The frame's origin lies `height` below the picture's upper edge, which a fractional canvas
    // overhangs at the bottom.
    const Rect area{{0, height - canvas.height}, {canvas.width, canvas.height}};
    context.saveState();
    context.setAlpha(layer.opacity);
    context.drawImageFile(layer.imageData->span(), *image, area);
    context.restoreState();
}

void drawStroke(GraphicsContext& context, const Stroke& stroke, double height) {
    const Path path = pathOfStroke(stroke, height);
    context.setAlpha(stroke.opacity);
    if (stroke.isFill) {
        context.fillPath(path, stroke.color);
    } else {
        context.strokePath(path, stroke.color, stroke.lineWidth);
    }
    context.setAlpha(1);
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
