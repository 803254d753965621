#include "model/FloatBox.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

float roundedDown(double value) {
    const auto rounded = static_cast<float>(value);
    return rounded > value ? std::nextafter(rounded, -HUGE_VALF) : rounded;
}

float roundedUp(double value) { return -roundedDown(-value); }

}  // namespace

FloatBox FloatBox::around(const Rect& area, double margin) {
    return outwards(area.minX(), area.minY(), area.maxX(), area.maxY(), margin);
}

FloatBox FloatBox::paintedBy(const StrokeSummary& strokes) {
    if (strokes.minX > strokes.maxX) return {};
    return outwards(strokes.minX, strokes.minY, strokes.maxX, strokes.maxY,
                    strokes.maxLineWidth / 2);
}

FloatBox FloatBox::outwards(double minX, double minY, double maxX, double maxY, double margin) {
    const double largest =
        std::max({std::abs(minX), std::abs(minY), std::abs(maxX), std::abs(maxY), margin});
    const double grown = margin + 16 * std::numeric_limits<double>::epsilon() * largest;
    return {roundedDown(minX - grown), roundedDown(minY - grown), roundedUp(maxX + grown),
            roundedUp(maxY + grown)};
}

}  // namespace marlevo
