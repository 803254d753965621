#pragma once

#include "tools/GridPoint.h"
#include "tools/Region.h"

#include <array>
#include <vector>

namespace marlevo {

/// The greatest distance, in cells, of the simplified outline of a region from the traced one.
inline constexpr double outlineEpsilon = 2.0;

/// The cells along the outer edge of the region, each a side or corner neighbour of the one before.
///
/// Starts at the topmost cell of the leftmost column and runs down the left side first, that is
/// anticlockwise in the picture as shown. From each cell the eight neighbours are tried
/// anticlockwise, beginning after the previous cell of the trace. The trace ends with the first
/// return to the start, which is not repeated, or when it has width × height + 1 cells. Parts one
/// cell wide are traced in both directions. Parts that are not joined to the start, and holes, are
/// left out. Empty for an empty region, one cell for an isolated start.
std::vector<GridPoint> traceOutline(const Region& region);

/// The vertices that describe the region's shape: its outline, simplified by outlineEpsilon when it
/// has four cells or more. Fewer than three vertices describe no shape.
std::vector<GridPoint> traceBoundary(const Region& region);

/// The rectangle through the region's outermost cells, as a closed sequence of vertices: bottom
/// left, bottom right, top right, top left and again bottom left. The region must not be empty.
std::array<GridPoint, 5> boundingRectangle(const Region& region);

}  // namespace marlevo
