#include "tools/SimplifyPath.h"

#include "tools/Chord.h"
#include "tools/PathHulls.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace marlevo {
namespace {

bool isExact(std::span<const GridPoint> points) {
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    GridPoint min{highest, highest};
    GridPoint max{lowest, lowest};
    for (const GridPoint point : points) {
        min = {std::min(min.x, point.x), std::min(min.y, point.y)};
        max = {std::max(max.x, point.x), std::max(max.y, point.y)};
    }
    return double{0} + max.x - min.x <= Chord::exactExtent &&
           double{0} + max.y - min.y <= Chord::exactExtent;
}

/// Leaves out the points whose step before and step after are equal. The algorithm keeps none of
/// them: along a straight run the distance to a line or point is convex, so it is largest at one of
/// the run's ends, and where it is constant, the beginning is the earliest point.
std::vector<GridPoint> withoutStraightRuns(std::span<const GridPoint> points) {
    std::vector<GridPoint> corners{points.front()};
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const GridPoint before = points[i - 1];
        const GridPoint here = points[i];
        const GridPoint after = points[i + 1];
        const bool isStraight = std::int64_t{here.x} - before.x == std::int64_t{after.x} - here.x &&
                                std::int64_t{here.y} - before.y == std::int64_t{after.y} - here.y;
        if (!isStraight) corners.push_back(here);
    }
    corners.push_back(points.back());
    return corners;
}

/// Like PathHulls::farthest, but compares every point, and so allows rounded deviations.
std::size_t farthestByScan(std::span<const GridPoint> path, std::size_t begin, std::size_t end,
                           const Chord& chord) {
    std::size_t farthest = begin;
    double largest = -1;
    for (std::size_t i = begin; i < end; ++i) {
        const double distance = chord.distance(chord.deviation(path[i]));
        if (distance > largest) {
            largest = distance;
            farthest = i;
        }
    }
    return farthest;
}

/// `findFarthest(begin, end, chord)` returns the inner point at which to split.
template <class FindFarthest>
std::vector<GridPoint> simplify(std::span<const GridPoint> path, double epsilon,
                                FindFarthest findFarthest) {
    std::vector<GridPoint> kept{path.front()};
    std::size_t first = 0;
    // The ends of the stretches still to be simplified; the next one begins at `first`.
    std::vector<std::size_t> ends{path.size() - 1};
    while (!ends.empty()) {
        const std::size_t last = ends.back();
        if (first + 1 < last) {
            const Chord chord(path[first], path[last]);
            const std::size_t farthest = findFarthest(first + 1, last, chord);
            if (chord.distance(chord.deviation(path[farthest])) > epsilon) {
                ends.push_back(farthest);
                continue;
            }
        }
        kept.push_back(path[last]);
        first = last;
        ends.pop_back();
    }
    return kept;
}

}  // namespace

std::vector<GridPoint> simplifyPath(std::span<const GridPoint> points, double epsilon) {
    if (points.size() < 3) return {points.begin(), points.end()};

    if (!isExact(points)) {
        return simplify(points, epsilon,
                        [&](std::size_t begin, std::size_t end, const Chord& chord) {
                            return farthestByScan(points, begin, end, chord);
                        });
    }
    const std::vector<GridPoint> corners = withoutStraightRuns(points);
    const PathHulls hulls(corners);
    return simplify(corners, epsilon, [&](std::size_t begin, std::size_t end, const Chord& chord) {
        return hulls.farthest(begin, end, chord);
    });
}

}  // namespace marlevo
