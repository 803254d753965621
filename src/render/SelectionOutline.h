#pragma once

#include "model/LayerList.h"

namespace marlevo {

/// The opacity with which the outline of the selection is drawn: the one that drawing the layers
/// and the stroke in progress, null without one, leaves set. A layer sets its own opacity, and each
/// stroke sets 1 after it is drawn. So the outline has the opacity of the topmost visible layer if
/// that layer has no strokes, else 1.
double selectionOutlineOpacity(const LayerList& layers, const Stroke* strokeInProgress);

}  // namespace marlevo
