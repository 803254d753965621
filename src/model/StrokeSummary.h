#pragma once

#include "graphics/Rect.h"
#include "model/Stroke.h"

#include <cstddef>
#include <limits>

namespace marlevo {

/// What one or many strokes add up to: enough to tell that none of them matters somewhere.
struct StrokeSummary {
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    std::size_t count = 0;  ///< of strokes

    /// The box of all points; minimum above maximum when there are none. Infinite on every side
    /// when a coordinate is not finite, since where such a stroke lies cannot be told.
    double minX = infinity;
    double minY = infinity;
    double maxX = -infinity;
    double maxY = -infinity;

    double maxLineWidth = 0;  ///< infinite when a width is not a number

    static StrokeSummary of(const Stroke& stroke);

    void add(const StrokeSummary& other);

    /// False only when every point is further than `margin` from `area`, in x or in y. The doubt
    /// that rounding leaves counts as near, so that nobody's exact test finds more.
    bool reaches(const Rect& area, double margin) const;
};

}  // namespace marlevo
