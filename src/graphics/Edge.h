#pragma once

#include "graphics/Bounds.h"
#include "graphics/FlattenedPath.h"
#include "graphics/Point.h"

#include <cstdint>

namespace marlevo {

/// A straight edge in 1/256 pixel from its upper end to its lower one: y0 < y1.
struct Edge {
    static constexpr int subpixelBits = 8;
    static constexpr std::int32_t subpixels = 1 << subpixelBits;

    /// The greatest coordinate, in pixels. In subpixels the difference of two such coordinates fits
    /// 31 bits.
    static constexpr int limit = 1 << 21;

    std::int32_t x0 = 0;
    std::int32_t y0 = 0;
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    /// +1 when the outline runs downwards along the edge, −1 when it runs upwards.
    std::int32_t winding = 1;
};

/// Calls `add` with each edge of an outline that is not level. Corners are rounded to subpixels;
/// contours count as closed. Coordinates are at most Edge::limit away from 0.
template <typename Add>
void forEachEdge(const FlattenedPath& outline, Add add) {
    struct Corner {
        explicit Corner(Point p) : x(toSubpixels(p.x)), y(toSubpixels(p.y)) {}

        static std::int32_t toSubpixels(double v) {
            // For a positive number, truncation, which is one instruction, is the floor.
            constexpr std::int64_t bias = std::int64_t{1} << 32;
            return static_cast<std::int32_t>(
                static_cast<std::int64_t>(v * Edge::subpixels + (double(bias) + 0.5)) - bias);
        }

        std::int32_t x;
        std::int32_t y;
    };
    for (const FlattenedPath::Contour& contour : outline.contours) {
        const auto points = outline.pointsOf(contour);
        Corner from(points.back());
        for (const Point p : points) {
            const Corner to(p);
            if (from.y < to.y) add(Edge{from.x, from.y, to.x, to.y, 1});
            if (from.y > to.y) add(Edge{to.x, to.y, from.x, from.y, -1});
            from = to;
        }
    }
}

}  // namespace marlevo
