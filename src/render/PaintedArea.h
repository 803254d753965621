#pragma once

#include "graphics/IntRect.h"
#include "graphics/Rect.h"
#include "model/Box.h"
#include "model/Stroke.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

/// What a pen may touch beyond half its width, in device pixels: anti-aliasing, and hairlines,
/// which are drawn wider than they are.
inline constexpr double penFringe = 1.5;

/// Device pixels as an area of the canvas, `scale` of them a canvas pixel.
inline Rect onCanvas(const IntRect& area, double scale) {
    return {{area.left / scale, area.top / scale}, {area.width() / scale, area.height() / scale}};
}

/// The device pixels that may change when something with these point bounds and pen width is drawn
/// at `scale` device pixels a canvas pixel. Bounds that are no numbers may change everything.
inline IntRect paintedArea(const Rect& bounds, double lineWidth, double scale) {
    constexpr double farthest = 1 << 30;
    const double margin = std::max(lineWidth, 0.0) / 2 * scale + penFringe;
    const auto low = [&](double edge) {
        const double device = std::floor(edge * scale - margin);
        return device > -farthest ? static_cast<int>(std::min(device, farthest)) : -(1 << 30);
    };
    const auto high = [&](double edge) {
        const double device = std::ceil(edge * scale + margin);
        return device < farthest ? static_cast<int>(std::max(device, -farthest)) : 1 << 30;
    };
    return {low(bounds.minX()), low(bounds.minY()), high(bounds.maxX()), high(bounds.maxY())};
}

/// The same for what paints within a box.
inline IntRect paintedArea(const Box& box, double scale) {
    const double left = box.minX;
    const double top = box.minY;
    return paintedArea({{left, top}, {box.maxX - left, box.maxY - top}}, 0, scale);
}

inline IntRect paintedArea(const Stroke& stroke, double scale) {
    return paintedArea(stroke.boundingRect(), stroke.lineWidth, scale);
}

}  // namespace marlevo
