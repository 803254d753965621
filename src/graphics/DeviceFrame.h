#pragma once

#include "graphics/Bounds.h"
#include "graphics/Point.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

/// Maps the drawing frame to the device plane: device = (x · scaleX + originX, y · scaleY +
/// originY). Device rows are counted downwards.
struct DeviceFrame {
    double scaleX = 1;
    double scaleY = 1;
    double originX = 0;
    double originY = 0;

    /// The frame of a picture `height` pixels high: origin at its bottom left, y upwards.
    static DeviceFrame yUp(double height) { return {1, -1, 0, height}; }
    /// Origin at the top left, y downwards, `scale` device pixels a unit.
    static DeviceFrame yDown(double scale) { return {scale, scale, 0, 0}; }

    /// False if a number is not finite or a scale is 0.
    bool isUsable() const {
        return std::isfinite(scaleX) && std::isfinite(scaleY) && scaleX != 0 && scaleY != 0 &&
               std::isfinite(originX) && std::isfinite(originY);
    }

    Point map(Point p) const { return {p.x * scaleX + originX, p.y * scaleY + originY}; }

    /// Edges that change places are put in order.
    Bounds map(const Bounds& box) const {
        const Point a = map(Point{box.left, box.top});
        const Point b = map(Point{box.right, box.bottom});
        const auto [left, right] = std::minmax({a.x, b.x});
        const auto [top, bottom] = std::minmax({a.y, b.y});
        return {left, top, right, bottom};
    }
};

}  // namespace marlevo
