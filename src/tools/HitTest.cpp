#include "tools/HitTest.h"

#include <cmath>

namespace marlevo {

namespace {

/// The distance from p to the infinite line through a and b, or to a when they are the same.
double distanceToLine(Point p, Point a, Point b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    if (a == b) return std::sqrt((p.x - a.x) * (p.x - a.x) + (p.y - a.y) * (p.y - a.y));
    return std::abs((p.x - a.x) * dy - (p.y - a.y) * dx) / std::sqrt(dx * dx + dy * dy);
}

}  // namespace

bool isHit(const Stroke& stroke, Point p, double tolerance) {
    const auto points = stroke.points.span();
    if (points.size() < 2) return false;
    if (!stroke.boundingRect().grownBy(tolerance).contains(p)) return false;
    if (stroke.shapeType != Stroke::ShapeType::freehand) return true;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (distanceToLine(p, points[i - 1], points[i]) < tolerance) return true;
    }
    return false;
}

std::optional<std::size_t> firstHit(const StrokeList& strokes, Point p, double tolerance) {
    std::optional<std::size_t> found;
    strokes.visitNear({p, {}}, tolerance,
                      [&](std::size_t index, const Stroke& stroke, const FloatBox&) {
                          if (!isHit(stroke, p, tolerance)) return true;
                          found = index;
                          return false;
                      });
    return found;
}

}  // namespace marlevo
