#include "ui/ToolChoice.h"

namespace marlevo {

namespace {

void clearSelection(DrawingDocument& document) {
    document.selectedLayerID = std::nullopt;
    document.selectedStrokeIndex = std::nullopt;
}

}  // namespace

void chooseBrush(DrawingDocument& document) {
    document.isEraser = false;
    document.isFillTool = false;
    document.isShapeTool = false;
    document.isEyeDropper = false;
    document.isSelectTool = false;
    clearSelection(document);
}

void chooseEraser(DrawingDocument& document) {
    document.isEraser = true;
    document.isFillTool = false;
    document.isShapeTool = false;
    document.isEyeDropper = false;
    document.isSelectTool = false;
    clearSelection(document);
}

void chooseFill(DrawingDocument& document) {
    document.isFillTool = true;
    document.isEraser = false;
    document.isShapeTool = false;
    document.isEyeDropper = false;
    document.isSelectTool = false;
    clearSelection(document);
}

void chooseEyeDropper(DrawingDocument& document) {
    document.isEyeDropper = true;
    document.isEraser = false;
    document.isFillTool = false;
    document.isShapeTool = false;
    document.isSelectTool = false;
    clearSelection(document);
}

void chooseSelect(DrawingDocument& document) {
    document.isSelectTool = true;
    document.isEraser = false;
    document.isFillTool = false;
    document.isShapeTool = false;
    document.isEyeDropper = false;
}

void chooseShape(DrawingDocument& document, Stroke::ShapeType type) {
    document.isShapeTool = true;
    document.currentShapeType = type;
    document.isEraser = false;
    document.isFillTool = false;
    document.isEyeDropper = false;
    document.isSelectTool = false;
    clearSelection(document);
}

bool isShapeChosen(const DrawingDocument& document, Stroke::ShapeType type) {
    return document.isShapeTool && document.currentShapeType == type;
}

}  // namespace marlevo
