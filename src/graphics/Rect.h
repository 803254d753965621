#pragma once

#include "graphics/Point.h"
#include "graphics/Size.h"

namespace marlevo {

/// An axis-aligned rectangle. Width and height are never negative where this program makes one.
struct Rect {
    Point origin;
    Size size;

    double minX() const { return origin.x; }
    double minY() const { return origin.y; }
    double maxX() const { return origin.x + size.width; }
    double maxY() const { return origin.y + size.height; }

    /// The rectangle with `margin` added on every side.
    Rect grownBy(double margin) const {
        return {{origin.x - margin, origin.y - margin},
                {size.width + 2 * margin, size.height + 2 * margin}};
    }

    /// Minimum edges belong to the rectangle, maximum edges do not.
    bool contains(Point p) const {
        return minX() <= p.x && p.x < maxX() && minY() <= p.y && p.y < maxY();
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace marlevo
