#pragma once

#include "model/DrawingDocument.h"

namespace marlevo {

// What choosing a tool does to the document: at most one tool flag stays set and the selection is
// cleared, except by the select tool. Readers see the flags change one by one, the chosen one
// first.

void chooseBrush(DrawingDocument& document);
void chooseEraser(DrawingDocument& document);
void chooseFill(DrawingDocument& document);
void chooseEyeDropper(DrawingDocument& document);
void chooseSelect(DrawingDocument& document);
void chooseShape(DrawingDocument& document, Stroke::ShapeType type);

/// Whether the shape tool is chosen and draws this shape.
bool isShapeChosen(const DrawingDocument& document, Stroke::ShapeType type);

}  // namespace marlevo
