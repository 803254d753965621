#pragma once

#include "model/LayerList.h"

namespace marlevo {

/// The opacity of the selection's outline: that of the topmost visible layer if nothing is drawn
/// after the layer's image, else 1. The stroke in progress, which may be null, is drawn after all
/// layers. Strokes of fewer than two points are not drawn.
double selectionOutlineOpacity(const LayerList& layers, const Stroke* strokeInProgress);

}  // namespace marlevo
