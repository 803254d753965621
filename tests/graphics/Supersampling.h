#pragma once

#include "graphics/Color.h"
#include "graphics/FlattenedPath.h"
#include "graphics/Path.h"
#include "tests/support/Canvas.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace marlevo {

/// The part of the pixel (x, y), 0 to 1, whose `samples`² sample points fulfil `inside(point)`.
template <class Inside>
double supersampled(int x, int y, int samples, Inside inside) {
    int hits = 0;
    for (int j = 0; j < samples; ++j)
        for (int i = 0; i < samples; ++i)
            hits += inside(Point{x + (i + 0.5) / samples, y + (j + 0.5) / samples});
    return double(hits) / (samples * samples);
}

inline int windingNumber(const FlattenedPath& outline, Point p) {
    int winding = 0;
    for (const auto& part : outline.contours) {
        const auto points = outline.pointsOf(part);
        Point a = points.back();
        for (const Point b : points) {
            if ((a.y <= p.y) != (b.y <= p.y) && a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) < p.x)
                winding += a.y < b.y ? 1 : -1;
            a = b;
        }
    }
    return winding;
}

inline double squaredDistanceToSegment(Point p, Point a, Point b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double t = square > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / square : 0;
    const double s = std::clamp(t, 0.0, 1.0);
    const double x = p.x - a.x - s * dx;
    const double y = p.y - a.y - s * dy;
    return x * x + y * y;
}

inline double distanceToLines(Point p, const FlattenedPath& lines) {
    double least = std::numeric_limits<double>::infinity();
    for (const auto& part : lines.contours) {
        const auto points = lines.pointsOf(part);
        Point a = part.closed ? points.back() : points.front();
        for (const Point b : points) {
            least = std::min(least, squaredDistanceToSegment(p, a, b));
            a = b;
        }
    }
    return std::sqrt(least);
}

/// The part of the pixel (x, y), 0 to 1, that is within `radius` of the lines.
inline double coverageByRoundPen(int x, int y, const FlattenedPath& lines, double radius) {
    const double beyond = distanceToLines({x + 0.5, y + 0.5}, lines) - radius;
    constexpr double halfDiagonal = 0.75;
    if (std::abs(beyond) > halfDiagonal) return beyond < 0 ? 1 : 0;
    return supersampled(x, y, 8, [&](Point p) { return distanceToLines(p, lines) <= radius; });
}

inline void addPolygon(FlattenedPath& path, const std::vector<Point>& points, bool closed = true) {
    path.contours.push_back({path.points.size(), points.size(), closed});
    path.points.insert(path.points.end(), points.begin(), points.end());
}

inline FlattenedPath polyline(const std::vector<Point>& points, bool closed = false) {
    FlattenedPath path;
    addPolygon(path, points, closed);
    return path;
}

inline Path line(Point from, Point to) {
    Path path;
    path.move(from);
    path.addLine(to);
    return path;
}

}  // namespace marlevo
