#pragma once

#include "model/DrawingDocument.h"

namespace marlevo {

/// The opacity with which the outline of the selection is drawn: the one that drawing layers and
/// the stroke in progress leaves behind. A layer sets its own, and each stroke sets 1 when it is
/// done, so that only a topmost visible layer without strokes lends the outline its opacity.
double selectionOutlineOpacity(const DrawingDocument& document);

}  // namespace marlevo
