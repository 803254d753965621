#pragma once

#include "graphics/Blend.h"
#include "graphics/FlattenedPath.h"
#include "graphics/PixelBuffer.h"

namespace marlevo {

/// Fills `outline` on `target`, whose area lies on the plane of the outline's coordinates:
/// non-zero winding rule, sub-paths closed by a straight segment, anti-aliased, blended
/// source-over.
///
/// A pixel's coverage is the exact area of the outline in it, on corners rounded to 1/256 pixel:
/// every segment adds its signed area and cover to the cells it touches, and the running sum along
/// a row is the winding number averaged over the pixel (the scan conversion of Raph Levien's
/// font-rs and David Turner's FreeType, in integers). The average is cut to −1 … 1, which is the
/// non-zero rule except inside a pixel where edges of one shape meet: two partial coverages that
/// overlap there add up, and opposite ones cancel. Both errors stay on such pixels.
///
/// A pixel gets the same bytes whatever part of the plane `target` is. Coordinates may have any
/// value; a segment with one that is not finite is left out together with its sub-path, and
/// what lies more than 2²¹ pixels from 0 is moved to that border.
void fillOutline(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color);

}  // namespace marlevo
