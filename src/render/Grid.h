#pragma once

#include "graphics/Path.h"
#include "model/CanvasSize.h"

namespace marlevo {

/// Distance of the grid's lines and their width, in canvas pixels.
inline constexpr double gridSpacing = 50;
inline constexpr double gridLineWidth = 0.5;

/// The grid as thin rectangles in canvas coordinates, to be filled at once: lines at every multiple
/// of the spacing from 0 to the canvas's far edges, which count when they are multiples. Only lines
/// that may touch `visible` are in it.
Path gridPath(CanvasSize canvas, const Rect& visible);

}  // namespace marlevo
