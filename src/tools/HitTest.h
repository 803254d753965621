#pragma once

#include "graphics/Point.h"
#include "model/StrokeList.h"

#include <cstddef>
#include <optional>

namespace marlevo {

/// Whether a click at `p` means this stroke, all in canvas pixels. `p` must lie in the bounds of
/// all points grown by the tolerance; a shape is then hit, a freehand stroke only when `p` lies
/// nearer than the tolerance to one of the infinite lines through neighbouring points. A stroke of
/// fewer than two points is never hit.
bool isHit(const Stroke& stroke, Point p, double tolerance);

/// The oldest stroke of the list that is hit. Looks only at strokes near `p`.
std::optional<std::size_t> firstHit(const StrokeList& strokes, Point p, double tolerance);

}  // namespace marlevo
