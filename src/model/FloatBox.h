#pragma once

#include "graphics/Rect.h"
#include "model/StrokeSummary.h"

namespace marlevo {

/// A rectangle in single precision for fast searches: rounded outwards, so that it contains the
/// rectangle it was made from. Without arguments it touches nothing.
struct FloatBox {
    float minX = StrokeSummary::infinity;
    float minY = StrokeSummary::infinity;
    float maxX = -StrokeSummary::infinity;
    float maxY = -StrokeSummary::infinity;

    /// The area grown by a margin and by the possible rounding error. Touches every other box if a
    /// coordinate is NaN.
    static FloatBox around(const Rect& area, double margin);

    /// The area that the strokes paint, without anti-aliasing. Touches nothing if they have no
    /// points.
    static FloatBox paintedBy(const StrokeSummary& strokes);

    bool touches(const FloatBox& other) const {
        return !(minX > other.maxX || maxX < other.minX || minY > other.maxY || maxY < other.minY);
    }

private:
    static FloatBox outwards(double minX, double minY, double maxX, double maxY, double margin);
};

}  // namespace marlevo
