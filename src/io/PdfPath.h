#pragma once

#include "graphics/Path.h"

#include <cairo.h>

namespace marlevo {

/// What is going to happen to a path.
enum class PathUse : unsigned char { fill, stroke };

/// Makes the path cairo's current one; false when nothing would be painted.
///
/// Quadratic curves become the same curves as cubics, ellipses four cubics. Rectangles and ellipses
/// without area are left out of a fill, where readers would show a line, and become the line or dot
/// that they are in a stroke. A path with coordinates that are not finite or more than `farthest`
/// from 0, at most FlattenedPath::maxCoordinate, becomes straight segments that follow the border
/// of that range, as `flatten` has it.
bool setPdfPath(cairo_t* cairo, const Path& path, PathUse use, double farthest);

}  // namespace marlevo
