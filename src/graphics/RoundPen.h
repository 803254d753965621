#pragma once

#include <algorithm>
#include <cmath>

namespace marlevo {

/// What a round pen makes of a pixel's distance to its track, in device pixels.
///
/// A pixel is covered by (edge − distance), cut to 0 … 1, times `full`: the share of a pixel that
/// a straight edge through it leaves. A pen thinner than a pixel is one of a pixel made lighter.
struct RoundPen {
    explicit RoundPen(double width)
        : reach(std::max(width, 1.0) / 2 + 0.5), edge(static_cast<float>(reach)),
          full(static_cast<float>(std::min(width, 1.0) * 255)) {}

    /// The coverage, 0 to 255, of a pixel by its centre's squared distance.
    int coverage(float squaredDistance) const {
        const float inside = edge - std::sqrt(squaredDistance);
        const float roundedUp = std::min(std::max(inside, 0.0F), 1.0F) * full + 0.5F;
        return static_cast<int>(roundedUp);
    }

    double reach;  ///< no pixel whose centre is further away is covered
    float edge;
    float full;  ///< the coverage of a pixel well inside, 0 … 255
};

}  // namespace marlevo
