#pragma once

#include "graphics/Point.h"
#include "model/StrokeList.h"

#include <cstddef>
#include <optional>

namespace marlevo {

/// True if a click at `p` hits the stroke. All values are in canvas pixels. A shape is hit if `p`
/// is in the bounds of its points, grown by the tolerance. A freehand stroke is hit if, in
/// addition, a line through two neighbouring points, which counts as infinite, is nearer than the
/// tolerance. A stroke of fewer than two points is never hit.
bool isHit(const Stroke& stroke, Point p, double tolerance);

/// The index of the oldest stroke in the list that is hit. Tests only strokes near `p`.
std::optional<std::size_t> firstHit(const StrokeList& strokes, Point p, double tolerance);

}  // namespace marlevo
