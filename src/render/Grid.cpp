#include "render/Grid.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace marlevo {

namespace {

/// Calls `line` with the position of each grid line in 0 … end that may touch from … to. Each
/// position is a product, so that no rounding adds up. `from` and `to` are the edges of a part of a
/// screen, so there are few lines between them.
template <typename Line>
void forEachPosition(double end, double from, double to, Line line) {
    const double first = std::max(0.0, std::ceil((from - gridLineWidth) / gridSpacing));
    const double last = std::floor(std::min(end, to + gridLineWidth) / gridSpacing);
    if (!(first <= last)) return;
    const auto count = static_cast<std::int64_t>(last - first);
    for (std::int64_t i = 0; i <= count; ++i)
        line((first + static_cast<double>(i)) * gridSpacing);
}

}  // namespace

Path gridPath(CanvasSize canvas, const Rect& visible) {
    Path path;
    constexpr double half = gridLineWidth / 2;
    forEachPosition(canvas.width, visible.minX(), visible.maxX(), [&](double x) {
        path.addRect({{x - half, 0}, {gridLineWidth, canvas.height}});
    });
    forEachPosition(canvas.height, visible.minY(), visible.maxY(), [&](double y) {
        path.addRect({{0, y - half}, {canvas.width, gridLineWidth}});
    });
    return path;
}

}  // namespace marlevo
