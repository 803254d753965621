#pragma once

#include "model/Stroke.h"

namespace marlevo {

class DrawingDocument;

// Choosing a tool of a document. At most one tool flag stays set, and the selection is cleared
// except by the select tool. The flags publish one by one, the chosen one first.

void chooseBrush(DrawingDocument& document);
void chooseEraser(DrawingDocument& document);
void chooseFill(DrawingDocument& document);
void chooseEyeDropper(DrawingDocument& document);
void chooseSelect(DrawingDocument& document);
void chooseShape(DrawingDocument& document, Stroke::ShapeType type);

/// True when the shape tool is chosen and draws this shape.
bool isShapeChosen(const DrawingDocument& document, Stroke::ShapeType type);

}  // namespace marlevo
