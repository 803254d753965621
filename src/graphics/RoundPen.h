#pragma once

#include <algorithm>
#include <cmath>

namespace marlevo {

/// Converts a pixel's distance from the centre line to coverage, for a round pen. Lengths are in
/// device pixels.
///
/// The coverage is (edge − distance), limited to 0 … 1, times `full`: the share of the pixel on the
/// inner side of a straight edge. A pen thinner than `thinnest` has that width and a lower coverage
/// in proportion.
struct RoundPen {
    static constexpr double thinnest = 1;

    explicit RoundPen(double width)
        : reach(std::max(width, thinnest) / 2 + 0.5), edge(static_cast<float>(reach)),
          full(static_cast<float>(std::min(width / thinnest, 1.0) * 255)) {}

    /// The coverage, 0 to 255, of a pixel by the squared distance of its centre.
    int coverage(float squaredDistance) const {
        const float inside = edge - std::sqrt(squaredDistance);
        const float rounded = std::min(std::max(inside, 0.0F), 1.0F) * full + 0.5F;
        return static_cast<int>(rounded);
    }

    double reach;  ///< pixels whose centre is further away are not covered
    float edge;
    float full;  ///< the coverage of a pixel well inside, 0 … 255
};

}  // namespace marlevo
