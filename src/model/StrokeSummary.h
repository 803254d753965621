#pragma once

#include "graphics/Rect.h"
#include "model/Stroke.h"

#include <cstddef>
#include <limits>

namespace marlevo {

/// Number, bounds and largest pen of one or more strokes, to rule out areas that none of them can
/// touch.
struct StrokeSummary {
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    std::size_t count = 0;  ///< of strokes

    /// The box of all points; minimum above maximum when there are none. Infinite on every side if
    /// a coordinate is not finite, because such a stroke may be anywhere.
    double minX = infinity;
    double minY = infinity;
    double maxX = -infinity;
    double maxY = -infinity;

    double maxLineWidth = 0;  ///< infinite if a width is NaN

    static StrokeSummary of(const Stroke& stroke);

    void add(const StrokeSummary& other);

    /// False only if every point is further than `margin` from `area`, in x or in y. Distances
    /// within the rounding error of `margin` count as near, so that an exact test of a stroke never
    /// finds one that this rules out.
    bool reaches(const Rect& area, double margin) const;
};

}  // namespace marlevo
