#pragma once

#include "graphics/Point.h"
#include "graphics/Rect.h"
#include "graphics/Size.h"

#include <optional>

namespace marlevo {

class DrawingDocument;
struct Stroke;

// The selection of one stroke of a document. A selection that names no stroke, because the layers
// have changed since, counts as none. Positions are in canvas pixels.

/// Selects the oldest stroke at the point, on the topmost visible layer that has one there. Without
/// such a stroke nothing is selected afterwards.
void selectStroke(DrawingDocument& document, Point at);

/// Null when no stroke is selected. Valid until the next change of the layers.
const Stroke* selectedStroke(const DrawingDocument& document);

/// The outline around the selected stroke.
std::optional<Rect> selectedStrokeBoundingRect(const DrawingDocument& document);

/// Saves an undo state and the positions from which the selected stroke is moved.
void beginSelectDrag(DrawingDocument& document);

/// Moves the selected stroke to its positions at beginSelectDrag() plus `translation`. Without such
/// positions, or when the stroke has another number of points by then, nothing changes.
void updateSelectDrag(DrawingDocument& document, Size translation);

void endSelectDrag(DrawingDocument& document);

/// Removes the selected stroke from its layer and clears the selection.
void deleteSelectedStroke(DrawingDocument& document);

}  // namespace marlevo
