#pragma once

#include "graphics/Blend.h"
#include "graphics/PixelBuffer.h"
#include "graphics/Polyline.h"

namespace marlevo {

/// Fills `outline` on `target` with the non-zero winding rule; sub-paths are closed.
void fillOutline(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color);

}  // namespace marlevo
