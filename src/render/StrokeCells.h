#pragma once

#include "model/Stroke.h"
#include "render/CellSet.h"

namespace marlevo {

/// Adds the cells that drawing the stroke at `scale` device pixels per canvas pixel may change: for
/// a fill those of its bounds, for a line drawn with a pen those that its curves touch.
void addCellsOf(const Stroke& stroke, double scale, CellSet& cells);

}  // namespace marlevo
