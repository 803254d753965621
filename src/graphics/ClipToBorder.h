#pragma once

#include "graphics/Point.h"

#include <algorithm>
#include <array>

namespace marlevo {

/// The point nearest to `p` in the square of all coordinates from −limit to +limit.
inline Point nearestInSquare(Point p, double limit) {
    return {std::clamp(p.x, -limit, limit), std::clamp(p.y, -limit, limit)};
}

/// Replaces each point of a segment by the nearest one in the square. The part outside then follows
/// the border, so the part inside and the winding numbers inside stay the same. Calls add(point)
/// for each corner of the result except the first, which is nearestInSquare(from). Coordinates are
/// finite and of any size.
template <typename Add>
void clipToBorder(Point from, Point to, double limit, Add add) {
    // The result bends only where the segment crosses one of the four lines along the border.
    const auto crossing = [](double a, double b, double at) {
        // Halves keep the difference of two huge numbers finite.
        return (a < at) != (b < at) ? (at / 2 - a / 2) / (b / 2 - a / 2) : 1;
    };
    std::array crossings{crossing(from.x, to.x, -limit), crossing(from.x, to.x, limit),
                         crossing(from.y, to.y, -limit), crossing(from.y, to.y, limit)};
    std::ranges::sort(crossings);
    for (const double t : crossings) {
        if (t >= 1) break;
        add(nearestInSquare({from.x * (1 - t) + to.x * t, from.y * (1 - t) + to.y * t}, limit));
    }
    add(nearestInSquare(to, limit));
}

}  // namespace marlevo
