#pragma once

#include "graphics/Point.h"

#include <cstddef>
#include <span>
#include <vector>

namespace marlevo {

/// A path made of straight segments only, in device coordinates (pixel (x, y) covers the square
/// from (x, y) to (x + 1, y + 1), y downwards). Every coordinate is finite and at most
/// `maxCoordinate` away from 0.
class FlattenedPath {
public:
    /// Where coordinates end. No picture reaches this far, so what is cut off cannot be seen.
    static constexpr double maxCoordinate = 4194304;

    /// A run of at least one point. A closed one has a segment from its last point to its first,
    /// which is not repeated in `points`; a single point is a dot when stroked.
    struct Contour {
        std::size_t first = 0;
        std::size_t count = 0;
        bool closed = false;
    };

    std::vector<Point> points;
    std::vector<Contour> contours;

    std::span<const Point> pointsOf(const Contour& part) const {
        return {points.data() + part.first, part.count};
    }

    bool isEmpty() const { return contours.empty(); }

    /// Empties the path and keeps its memory for the next one.
    void clear() {
        points.clear();
        contours.clear();
    }
};

}  // namespace marlevo
