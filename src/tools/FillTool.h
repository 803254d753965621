#pragma once

#include "graphics/Point.h"

namespace marlevo {

class DrawingDocument;

/// Covers the region of similar colour around a point of the canvas by a filled stroke, on a new
/// layer of its own. A point outside the canvas changes nothing.
void performFill(DrawingDocument& document, Point at);

}  // namespace marlevo
