#pragma once

#include "graphics/Color.h"

#include <QString>

#include <functional>
#include <vector>

namespace marlevo {

/// A colour of the swatches.
struct QuickColor {
    QString name;                  ///< for assistive technology
    std::function<Color()> color;  ///< for the current palette
};

/// Black, white and the system's colours, in the order shown.
std::vector<QuickColor> quickColors();

}  // namespace marlevo
