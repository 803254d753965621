#include "model/Stroke.h"

#include "model/StrokeGeometry.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

Path Stroke::path() const {
    Path path;
    if (points.isEmpty()) return path;
    switch (shapeType) {
    case ShapeType::freehand:
        return smoothPath();
    case ShapeType::line:
        path.move(points[0]);
        path.addLine(points[points.size() - 1]);
        break;
    case ShapeType::rect:
        path.addRect(boundingCGRect());
        break;
    case ShapeType::ellipse:
        path.addEllipse(boundingCGRect());
        break;
    }
    return path;
}

Path Stroke::smoothPath() const {
    Path path;
    if (points.size() < 2) return path;
    addFreehandCurve(path, points.span(), [](Point p) { return p; });
    return path;
}

Rect Stroke::boundingCGRect() const {
    const Point a = points[0];
    if (points.size() < 2) return {a, {}};
    const Point b = points[1];
    return {{b.x < a.x ? b.x : a.x, b.y < a.y ? b.y : a.y},
            {std::abs(b.x - a.x), std::abs(b.y - a.y)}};
}

Rect Stroke::boundingRect() const { return points.bounds(); }

}  // namespace marlevo
