#pragma once

#include "graphics/Bounds.h"
#include "graphics/DeviceFrame.h"
#include "graphics/FlattenedPath.h"
#include "graphics/Path.h"

namespace marlevo {

/// The greatest distance, in device pixels, of a flattened curve from the true one.
inline constexpr double flatteningTolerance = 0.06;

/// What flatten() does with an open contour.
enum class OpenContours : unsigned char {
    keep,   ///< leaves it open, for a stroke
    close,  ///< joins its last point to its first by a straight segment, for a fill
};

/// All that a FlattenedPath can hold.
inline constexpr Bounds flattenedRange{-FlattenedPath::maxCoordinate, -FlattenedPath::maxCoordinate,
                                       FlattenedPath::maxCoordinate, FlattenedPath::maxCoordinate};

/// Replaces the curves of `path` by straight segments and maps it to the device; overwrites `out`.
/// A curve outside `cull`, a box on the device, becomes one segment, which is outside too; the
/// points inside do not depend on `cull`.
///
/// Segments beyond FlattenedPath::maxCoordinate follow that border (see
/// FlattenedPath::clippedTo()). An element with a coordinate that is not finite is left out; the
/// next one starts at the last point before it. A frame that is not usable gives an empty path. A
/// lone move draws nothing; a segment of length zero makes a contour of coinciding points.
void flatten(const Path& path, const DeviceFrame& frame, double tolerance, FlattenedPath& out,
             OpenContours openContours = OpenContours::keep, const Bounds& cull = flattenedRange);

}  // namespace marlevo
