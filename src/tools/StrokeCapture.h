#pragma once

#include "graphics/Point.h"

namespace marlevo {

class DrawingDocument;

// The stroke in progress of a document, from the pen's first position to its last. Positions are
// in canvas pixels.

/// Starts a stroke with the settings of the chosen tool: brush, shape or eraser. Saves an undo
/// state first.
void beginStroke(DrawingDocument& document, Point at);

/// Adds a position; a shape has its end moved there. Without a stroke in progress nothing changes.
void addPointToStroke(DrawingDocument& document, Point point);

/// Puts the stroke on the active layer and ends it. A stroke of one point, or one without an active
/// layer, is dropped.
void endStroke(DrawingDocument& document);

}  // namespace marlevo
