#pragma once

#include "graphics/Path.h"
#include "graphics/Point.h"

#include <cstddef>
#include <span>

namespace marlevo {

/// Adds the freehand curve of at least two points to the path: quadratic curves that end at the
/// midpoints of neighbouring points and have the points as controls, then a straight line to the
/// last point. `place` maps canvas points into the path's frame, after the midpoints are computed.
template <typename Place>
void addFreehandCurve(Path& path, std::span<const Point> points, Place place) {
    path.reserve(points.size() + 1);
    path.move(place(points[0]));
    if (points.size() > 2) {
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            const Point middle{(points[i].x + points[i + 1].x) * 0.5,
                               (points[i].y + points[i + 1].y) * 0.5};
            path.addQuadCurve(place(middle), place(points[i]));
        }
    }
    path.addLine(place(points.back()));
}

}  // namespace marlevo
