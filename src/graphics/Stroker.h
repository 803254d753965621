#pragma once

#include "graphics/Polyline.h"

namespace marlevo {

/// Builds the outline of a stroke with round joins and caps along `centerLine` (device
/// coordinates), to be filled with the non-zero rule. The pen is an ellipse: `lineWidth` times
/// the scales wide and high. `out` is overwritten.
void strokeOutline(const FlattenedPath& centerLine, double lineWidth, double scaleX, double scaleY,
                   FlattenedPath& out);

}  // namespace marlevo
