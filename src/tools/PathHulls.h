#pragma once

#include "tools/Chord.h"
#include "tools/GridPoint.h"

#include <cstddef>
#include <span>
#include <vector>

namespace marlevo {

/// The convex hulls of a path's blocks of 32 points, of the pairs of blocks, of the pairs of pairs
/// and so on. They find the point of any stretch that is farthest from a chord in O(log² n)
/// steps: a stretch is made of O(log n) hulls and less than two blocks, and on a hull that point is
/// a corner, found by binary search. (Where the chord's ends coincide, all corners of those hulls
/// are compared; hulls of points on a grid have few.)
///
/// Building takes O(n log n) steps. No two coordinates may differ by more than Chord::exactExtent.
/// The path is not copied and must outlive the hulls.
class PathHulls {
public:
    explicit PathHulls(std::span<const GridPoint> path);

    /// The index, from `begin` to `end` − 1, of the point with the largest deviation, the earliest
    /// of several. begin < end.
    std::size_t farthest(std::size_t begin, std::size_t end, const Chord& chord) const;

private:
    /// The corners along the bottom or the top of a hull, with strictly rising x.
    enum class Side { lower, upper };

    /// The hulls of 2^level blocks each, in the order of the path. Only full ones are kept.
    struct Level {
        std::vector<GridPoint> corners;
        /// Where each side begins in `corners`: lower and upper side of the first hull, of the
        /// second hull and so on; the last element is the end.
        std::vector<std::size_t> starts{0};

        std::size_t hullCount() const { return starts.size() / 2; }
        std::span<const GridPoint> side(std::size_t hull, Side side) const;
        void addSide(std::span<const GridPoint> sortedByX, Side side);
        double largestDeviation(std::size_t hull, const Chord& chord) const;
    };

    static Level hullsOfBlocks(std::span<const GridPoint> path);
    static Level hullsOfPairs(const Level& hulls);
    /// The earliest point of a hull's stretch with this deviation, which is the largest in it.
    std::size_t firstPointWith(double deviation, std::size_t level, std::size_t hull,
                               const Chord& chord) const;

    std::span<const GridPoint> path_;
    std::vector<Level> levels_;
};

}  // namespace marlevo
