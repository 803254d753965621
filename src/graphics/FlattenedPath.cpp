#include "graphics/FlattenedPath.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace marlevo {

namespace {

bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

Point nearestInSquare(Point p, double limit) {
    return {std::clamp(p.x, -limit, limit), std::clamp(p.y, -limit, limit)};
}

/// Appends the corners of a clipped segment, except the first.
void addClipped(Point from, Point to, double limit, std::vector<Point>& out) {
    // The result bends only where the segment crosses one of the four lines along the border.
    const auto crossing = [](double a, double b, double at) {
        // Halves keep the difference of two huge numbers finite.
        return (a < at) != (b < at) ? (at / 2 - a / 2) / (b / 2 - a / 2) : 1;
    };
    std::array crossings{crossing(from.x, to.x, -limit), crossing(from.x, to.x, limit),
                         crossing(from.y, to.y, -limit), crossing(from.y, to.y, limit)};
    std::ranges::sort(crossings);
    for (const double t : crossings) {
        if (t >= 1) break;
        out.push_back(
            nearestInSquare({from.x * (1 - t) + to.x * t, from.y * (1 - t) + to.y * t}, limit));
    }
    out.push_back(nearestInSquare(to, limit));
}

}  // namespace

FlattenedPath FlattenedPath::clippedTo(double limit) const {
    FlattenedPath result;
    for (const Contour& contour : contours) {
        const std::span<const Point> corners = pointsOf(contour);
        if (!std::ranges::all_of(corners, isFinite)) continue;
        const std::size_t first = result.points.size();
        result.points.push_back(nearestInSquare(corners.front(), limit));
        for (std::size_t i = 1; i < corners.size(); ++i)
            addClipped(corners[i - 1], corners[i], limit, result.points);
        if (contour.closed) {
            addClipped(corners.back(), corners.front(), limit, result.points);
            result.points.pop_back();  // the first point
        }
        result.contours.push_back({first, result.points.size() - first, contour.closed});
    }
    return result;
}

}  // namespace marlevo
