#include "tools/PathHulls.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>

namespace marlevo {
namespace {

constexpr std::size_t blockSize = 32;

bool isWestOf(GridPoint a, GridPoint b) { return a.x < b.x; }

/// Greater than zero when the path from a over b to c turns left.
std::int64_t turn(GridPoint a, GridPoint b, GridPoint c) {
    return (std::int64_t{b.x} - a.x) * (std::int64_t{c.y} - a.y) -
           (std::int64_t{b.y} - a.y) * (std::int64_t{c.x} - a.x);
}

/// The corner farthest in the direction (x, y) of a side that is convex towards it: along the side
/// the points first rise in that direction and then fall.
GridPoint extremeCorner(std::span<const GridPoint> side, double x, double y) {
    std::size_t low = 0;
    std::size_t high = side.size() - 1;
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        const double stepX = double{0} + side[middle + 1].x - side[middle].x;
        const double stepY = double{0} + side[middle + 1].y - side[middle].y;
        if (x * stepX + y * stepY > 0) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return side[low];
}

/// The farthest point so far, the earliest of several.
struct Candidate {
    double deviation = -1;
    /// The deviation of the point, or the largest deviation of the hull that contains it.
    std::size_t index = 0;
    std::optional<std::size_t> hullLevel{};
};

}  // namespace

std::span<const GridPoint> PathHulls::Level::side(std::size_t hull, Side side) const {
    const std::size_t at = 2 * hull + (side == Side::upper ? 1 : 0);
    return std::span(corners).subspan(starts[at], starts[at + 1] - starts[at]);
}

/// One half of Andrew's monotone chain (A. M. Andrew, "Another efficient algorithm for convex hulls
/// in two dimensions", 1979).
void PathHulls::Level::addSide(std::span<const GridPoint> sortedByX, Side side) {
    const std::size_t start = starts.back();
    const int outwards = side == Side::lower ? -1 : 1;
    for (const GridPoint point : sortedByX) {
        if (corners.size() > start && corners.back().x == point.x) {
            if ((std::int64_t{point.y} - corners.back().y) * outwards <= 0) continue;
            corners.pop_back();
        }
        while (corners.size() >= start + 2 &&
               turn(corners[corners.size() - 2], corners.back(), point) * outwards >= 0) {
            corners.pop_back();
        }
        corners.push_back(point);
    }
    starts.push_back(corners.size());
}

double PathHulls::Level::largestDeviation(std::size_t hull, const Chord& chord) const {
    const std::span<const GridPoint> lower = side(hull, Side::lower);
    const std::span<const GridPoint> upper = side(hull, Side::upper);
    if (chord.isClosed()) {
        double largest = 0;
        for (const GridPoint corner : lower)
            largest = std::max(largest, chord.deviation(corner));
        for (const GridPoint corner : upper)
            largest = std::max(largest, chord.deviation(corner));
        return largest;
    }
    // The chord's normal that points up (or straight to one side).
    const double up = chord.dx() < 0 ? -1 : 1;
    const double x = -up * chord.dy();
    const double y = up * chord.dx();
    return std::max(chord.deviation(extremeCorner(upper, x, y)),
                    chord.deviation(extremeCorner(lower, -x, -y)));
}

PathHulls::PathHulls(std::span<const GridPoint> path) : path_(path) {
    levels_.push_back(hullsOfBlocks(path));
    while (levels_.back().hullCount() >= 2)
        levels_.push_back(hullsOfPairs(levels_.back()));
}

PathHulls::Level PathHulls::hullsOfBlocks(std::span<const GridPoint> path) {
    Level level;
    std::array<GridPoint, blockSize> block;
    for (std::size_t begin = 0; begin + blockSize <= path.size(); begin += blockSize) {
        std::ranges::copy(path.subspan(begin, blockSize), block.begin());
        std::ranges::sort(block, isWestOf);
        level.addSide(block, Side::lower);
        level.addSide(block, Side::upper);
    }
    return level;
}

PathHulls::Level PathHulls::hullsOfPairs(const Level& hulls) {
    Level level;
    std::vector<GridPoint> merged;
    for (std::size_t hull = 0; hull + 1 < hulls.hullCount(); hull += 2) {
        for (const Side side : {Side::lower, Side::upper}) {
            const std::span<const GridPoint> a = hulls.side(hull, side);
            const std::span<const GridPoint> b = hulls.side(hull + 1, side);
            merged.resize(a.size() + b.size());
            std::ranges::merge(a, b, merged.begin(), isWestOf);
            level.addSide(merged, side);
        }
    }
    return level;
}

std::size_t PathHulls::farthest(std::size_t begin, std::size_t end, const Chord& chord) const {
    Candidate best;
    for (std::size_t i = begin; i < end;) {
        const std::size_t wholeBlocks = i % blockSize == 0 ? (end - i) / blockSize : 0;
        if (wholeBlocks == 0) {
            const double deviation = chord.deviation(path_[i]);
            if (deviation > best.deviation) best = {deviation, i};
            ++i;
            continue;
        }
        // The largest hull that begins here and does not reach past the end.
        const std::size_t block = i / blockSize;
        const auto level = std::min(static_cast<std::size_t>(std::countr_zero(block)),
                                    static_cast<std::size_t>(std::bit_width(wholeBlocks)) - 1);
        const std::size_t hull = block >> level;
        const double deviation = levels_[level].largestDeviation(hull, chord);
        if (deviation > best.deviation) best = {deviation, hull, level};
        i += blockSize << level;
    }
    return best.hullLevel ? firstPointWith(best.deviation, *best.hullLevel, best.index, chord)
                          : best.index;
}

std::size_t PathHulls::firstPointWith(double deviation, std::size_t level, std::size_t hull,
                                      const Chord& chord) const {
    for (; level > 0; --level) {
        const std::size_t left = 2 * hull;
        const bool isLeft = levels_[level - 1].largestDeviation(left, chord) == deviation;
        hull = isLeft ? left : left + 1;
    }
    std::size_t point = hull * blockSize;
    while (chord.deviation(path_[point]) != deviation)
        ++point;
    return point;
}

}  // namespace marlevo
