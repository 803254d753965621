#pragma once

#include "graphics/Path.h"
#include "model/CanvasSize.h"

namespace marlevo {

/// Distance of the grid's lines and their width, in canvas pixels.
inline constexpr double gridSpacing = 50;
inline constexpr double gridLineWidth = 0.5;

/// The grid as thin rectangles in canvas coordinates, to be filled in one call: lines at every
/// multiple of the spacing from 0 to the canvas's far edges, including an edge that is a multiple.
/// Leaves out lines that cannot touch `visible`.
Path gridPath(CanvasSize canvas, const Rect& visible);

}  // namespace marlevo
