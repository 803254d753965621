#pragma once

#include "graphics/DeviceFrame.h"
#include "graphics/FlattenedPath.h"
#include "graphics/Path.h"

namespace marlevo {

/// How far, in device pixels, a flattened curve may stray from the true one.
inline constexpr double flatteningTolerance = 0.06;

/// What flatten() does with an open contour.
enum class OpenContours : unsigned char {
    keep,   ///< leaves it open, for a stroke
    close,  ///< joins its last point to its first by a straight segment, for a fill
};

/// Where curves need their full number of segments. A curve that lies outside becomes one straight
/// segment, which lies outside too.
struct VisibleRange {
    double left = -FlattenedPath::maxCoordinate;
    double top = -FlattenedPath::maxCoordinate;
    double right = FlattenedPath::maxCoordinate;
    double bottom = FlattenedPath::maxCoordinate;
};

/// Replaces the curves of `path` by straight segments and maps it to the device; `out` is
/// overwritten. What is seen inside `visible` does not depend on `visible`.
///
/// A segment that leaves the range of FlattenedPath::maxCoordinate follows the border of that range
/// instead, so what is seen of it, and the winding number of every point inside, stay right.
/// An element with a coordinate that is not finite is left out; what follows goes on from the last
/// point before it. A frame that is not finite or has a scale of 0 gives an empty path.
/// A lone move draws nothing; a segment of length zero makes a sub-path of coinciding points.
void flatten(const Path& path, const DeviceFrame& frame, double tolerance, FlattenedPath& out,
             OpenContours ends = OpenContours::keep, const VisibleRange& visible = {});

}  // namespace marlevo
