#pragma once

#include "graphics/IntRect.h"
#include "graphics/Rect.h"
#include "model/FloatBox.h"
#include "model/Stroke.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

/// How far a pen may reach beyond half its width, in device pixels: by anti-aliasing, and because
/// hairlines are drawn wider than they are.
inline constexpr double penFringe = 1.5;

/// An area of device pixels in canvas pixels; `scale` is device pixels per canvas pixel.
inline Rect onCanvas(const IntRect& area, double scale) {
    return {{area.left / scale, area.top / scale}, {area.width() / scale, area.height() / scale}};
}

/// The device pixels that a mark with these bounds of its points and this pen width, both in canvas
/// pixels, may change at `scale` device pixels per canvas pixel. Everything if a bound is NaN.
inline IntRect deviceBounds(const Rect& bounds, double lineWidth, double scale) {
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

/// The same for a mark that paints inside a box.
inline IntRect deviceBounds(const FloatBox& box, double scale) {
    const double left = box.minX;
    const double top = box.minY;
    return deviceBounds({{left, top}, {box.maxX - left, box.maxY - top}}, 0, scale);
}

inline IntRect deviceBounds(const Stroke& stroke, double scale) {
    return deviceBounds(stroke.boundingRect(), stroke.lineWidth, scale);
}

}  // namespace marlevo
