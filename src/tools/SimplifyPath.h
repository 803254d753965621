#pragma once

#include "tools/GridPoint.h"

#include <span>
#include <vector>

namespace marlevo {

/// The points that the Ramer–Douglas–Peucker algorithm keeps (U. Ramer, "An iterative procedure for
/// the polygonal approximation of plane curves", 1972; D. Douglas and T. Peucker, "Algorithms for
/// the reduction of the number of points required to represent a digitized line", 1973).
///
/// A stretch between two kept points is split at the inner point farthest from the infinite line
/// through them (from the points themselves where they coincide), the earliest of several, until
/// none is farther than `epsilon`, which is at least 0. The first and the last point always stay.
/// Fewer than three points are returned unchanged. Distances are compared as the doubles
/// |dy · px − dx · py| / √(dx² + dy²) and √(px² + py²).
///
/// There is no recursion, and, for paths that extend over at most Chord::exactExtent, no quadratic
/// worst case: keeping k of n points takes O(n log n + k log² n) steps (see PathHulls).
std::vector<GridPoint> simplifyPath(std::span<const GridPoint> points, double epsilon);

}  // namespace marlevo
