#pragma once

#include "graphics/Color.h"

#include <QString>

#include <functional>
#include <vector>

namespace marlevo {

/// A colour offered for quick choice.
struct QuickColor {
    QString name;                  ///< for assistive technology
    std::function<Color()> color;  ///< as the desktop's palette is now
};

/// Black, white and the system's colours, in the order shown.
std::vector<QuickColor> quickColors();

}  // namespace marlevo
