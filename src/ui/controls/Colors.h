#pragma once

#include "graphics/Color.h"

#include <QColor>

#include <algorithm>

namespace marlevo {

/// For the screen: components beyond 0 to 1 are clamped.
inline QColor toQColor(const Color& color) {
    const auto component = [](double value) { return float(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(component(color.red), component(color.green), component(color.blue),
                            component(color.alpha));
}

/// Exact for colours of 8 bits a component.
inline Color toColor(const QColor& color) {
    const auto component = [](int value) { return value / 255.0; };
    return {component(color.red()), component(color.green()), component(color.blue()),
            component(color.alpha())};
}

}  // namespace marlevo
