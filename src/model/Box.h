#pragma once

#include "graphics/Rect.h"
#include "model/StrokeSummary.h"

namespace marlevo {

/// A rectangle in single precision that holds what it was made from, for quick searches.
struct Box {
    float minX = StrokeSummary::infinity;
    float minY = StrokeSummary::infinity;
    float maxX = -StrokeSummary::infinity;
    float maxY = -StrokeSummary::infinity;

    /// The area grown by a margin and by the doubt that rounding leaves. One that is not a number
    /// touches every other box.
    static Box around(const Rect& area, double margin);

    /// All that the strokes paint, anti-aliasing aside; nothing touches it when they have no
    /// points.
    static Box paintedBy(const StrokeSummary& strokes);

    bool touches(const Box& other) const {
        return !(minX > other.maxX || maxX < other.minX || minY > other.maxY || maxY < other.minY);
    }

private:
    static Box outwards(double minX, double minY, double maxX, double maxY, double margin);
};

}  // namespace marlevo
