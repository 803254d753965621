#include "model/StrokeSummary.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

StrokeSummary StrokeSummary::of(const Stroke& stroke) {
    StrokeSummary summary;
    summary.count = 1;
    if (!(stroke.lineWidth <= 0)) {
        summary.maxLineWidth = std::isnan(stroke.lineWidth) ? infinity : stroke.lineWidth;
    }
    if (stroke.points.isEmpty()) return summary;

    const Rect box = stroke.boundingRect();
    summary.minX = box.minX();
    summary.minY = box.minY();
    summary.maxX = box.maxX();
    summary.maxY = box.maxY();
    // Also catches a box so wide that its width is not finite.
    if (!std::isfinite(summary.maxX) || !std::isfinite(summary.maxY)) {
        summary.minX = summary.minY = -infinity;
        summary.maxX = summary.maxY = infinity;
    }
    return summary;
}

void StrokeSummary::add(const StrokeSummary& other) {
    count += other.count;
    minX = std::min(minX, other.minX);
    minY = std::min(minY, other.minY);
    maxX = std::max(maxX, other.maxX);
    maxY = std::max(maxY, other.maxY);
    maxLineWidth = std::max(maxLineWidth, other.maxLineWidth);
}

bool StrokeSummary::reaches(const Rect& area, double margin) const {
    if (minX > maxX) return false;
    const double largest =
        std::max({std::abs(minX), std::abs(minY), std::abs(maxX), std::abs(maxY), margin});
    const double near = margin + 16 * std::numeric_limits<double>::epsilon() * largest;
    // Negated comparisons, so that NaN counts as reached.
    return !(area.maxX() < minX - near || area.minX() > maxX + near || area.maxY() < minY - near ||
             area.minY() > maxY + near);
}

}  // namespace marlevo
