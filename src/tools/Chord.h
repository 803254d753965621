#pragma once

#include "tools/GridPoint.h"

#include <cmath>

namespace marlevo {

/// The straight line through both ends of a stretch of path, to measure the distance of points from
/// it. When the ends coincide, the distance from the ends counts instead.
///
/// `deviation` is cheap and exact and orders points as their distance does, and strictly so, while
/// no two coordinates of a path differ by more than `exactExtent`: products of such differences
/// and their sums stay below 2⁵⁰ and are exact in a double; two different deviations n and n + 1
/// below 2⁵⁰ are still more than one unit in the last place apart after the division by the
/// line's length, or after the root.
class Chord {
public:
    static constexpr double exactExtent = 1 << 24;

    Chord(GridPoint from, GridPoint to)
        : fromX_(from.x), fromY_(from.y), dx_(to.x - fromX_), dy_(to.y - fromY_),
          squaredLength_(dx_ * dx_ + dy_ * dy_) {}

    bool isClosed() const { return squaredLength_ == 0; }
    double dx() const { return dx_; }
    double dy() const { return dy_; }

    /// The length times the distance of `p` from the line, or its squared distance from both ends.
    double deviation(GridPoint p) const {
        const double px = p.x - fromX_;
        const double py = p.y - fromY_;
        return isClosed() ? px * px + py * py : std::abs(dy_ * px - dx_ * py);
    }

    /// The distance of points with this deviation.
    double distance(double deviation) const {
        return isClosed() ? std::sqrt(deviation) : deviation / std::sqrt(squaredLength_);
    }

private:
    double fromX_;
    double fromY_;
    double dx_;
    double dy_;
    double squaredLength_;
};

}  // namespace marlevo
