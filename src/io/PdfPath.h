#pragma once

#include "graphics/Path.h"
#include "io/PdfContent.h"

namespace marlevo {

/// The operation that paints a path.
enum class PathUse : unsigned char { fill, stroke };

/// Adds the operators that construct the path to the content; false when there is nothing to paint,
/// and then none were added. The operator that paints must follow.
///
/// Quadratic curves become the same curves as cubics, ellipses four cubics. Rectangles and ellipses
/// without area are left out of a fill, where readers would show a line, and become the line or dot
/// that they are in a stroke. A path with coordinates that are not finite or more than `farthest`
/// from 0 becomes straight segments that follow the border of that range, as flatten() returns.
bool addPdfPath(PdfContent& content, const Path& path, PathUse use, double farthest);

}  // namespace marlevo
