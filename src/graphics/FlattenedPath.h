#pragma once

#include "graphics/Point.h"

#include <cstddef>
#include <span>
#include <vector>

namespace marlevo {

/// A path of straight segments in device coordinates: pixel (x, y) is the square from (x, y) to
/// (x + 1, y + 1), y downwards. Every coordinate is finite and at most `maxCoordinate` away from 0.
class FlattenedPath {
public:
    /// Flattening clips at this distance from 0. No picture reaches as far.
    static constexpr double maxCoordinate = 4194304;

    /// A run of at least one point. A closed contour has a segment from its last point to its
    /// first, which is not repeated in `points`. The stroke of a single point is a dot.
    struct Contour {
        std::size_t first = 0;
        std::size_t count = 0;
        bool closed = false;
    };

    std::vector<Point> points;
    std::vector<Contour> contours;

    std::span<const Point> pointsOf(const Contour& contour) const {
        return {points.data() + contour.first, contour.count};
    }

    bool isEmpty() const { return contours.empty(); }

    /// The path with each point of its segments replaced by the nearest one in the square of all
    /// coordinates from −limit to +limit. Parts outside then follow the border, so the parts inside
    /// and the winding numbers inside stay the same. The points of this path may have any value; a
    /// contour with one that is not finite is left out.
    FlattenedPath clippedTo(double limit) const;

    /// Empties the path and keeps its memory.
    void clear() {
        points.clear();
        contours.clear();
    }
};

}  // namespace marlevo
