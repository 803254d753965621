#include "render/StrokePainting.h"

#include "graphics/BitmapContext.h"
#include "model/StrokeGeometry.h"
#include "render/DeviceBounds.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace marlevo {

namespace {

/// The rectangle of a shape, mirrored into the frame whose y grows upwards.
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

/// Fills or strokes the path in the style of a stroke.
void drawPath(GraphicsContext& context, const Path& path, const Stroke& style) {
    context.setAlpha(style.opacity);
    if (style.isFill) {
        context.fillPath(path, style.color);
    } else {
        context.strokePath(path, style.color, style.lineWidth);
    }
    context.setAlpha(1);
}

}  // namespace

void drawStrokeOnScreen(GraphicsContext& context, const Stroke& stroke) {
    if (stroke.points.size() >= 2) drawPath(context, stroke.path(), stroke);
}

void drawStrokesOnScreen(const PixelBuffer& part, std::span<const Stroke* const> strokes,
                         double scale) {
    BitmapContext context(part, DeviceFrame::yDown(scale));
    for (const Stroke* stroke : strokes)
        if (!deviceBounds(*stroke, scale).intersectedWith(part.area).isEmpty())
            drawStrokeOnScreen(context, *stroke);
}

void drawStroke(GraphicsContext& context, const Stroke& stroke, double height) {
    drawPath(context, pathOfStroke(stroke, height), stroke);
}

}  // namespace marlevo
