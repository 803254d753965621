#pragma once

#include "graphics/BitmapContext.h"
#include "graphics/Path.h"
#include "graphics/Polyline.h"

namespace marlevo {

/// How far, in device pixels, a flattened curve may stray from the true one.
inline constexpr double flatteningTolerance = 0.05;

/// Replaces the curves of `path` by straight segments and maps it to the device; `out` is
/// overwritten.
///
/// A segment that leaves the range of FlattenedPath::maxCoordinate follows the border of that range
/// instead, so what is seen of it, and the winding number of every point inside, stay right.
/// An element with a coordinate that is not finite is left out; what follows goes on from the last
/// point before it. A frame that is not finite or has a scale of 0 gives an empty path.
void flatten(const Path& path, const DeviceFrame& frame, double tolerance, FlattenedPath& out);

} // namespace marlevo
