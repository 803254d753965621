#pragma once

#include "graphics/Point.h"

namespace marlevo {

class DrawingDocument;

/// Selects the colour that the rendered picture has at a point of the canvas, opaque, and turns the
/// eyedropper off. A point outside the canvas changes nothing.
void pickColor(DrawingDocument& document, Point at);

}  // namespace marlevo
