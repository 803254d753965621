#include "tools/ToolChoice.h"

#include "model/DrawingDocument.h"

namespace marlevo {

namespace {

void clearFlagsExcept(const void* chosen, DrawingDocument& document) {
    const auto clear = [&](auto& flag) {
        if (&flag != chosen) flag = false;
    };
    clear(document.isEraser);
    clear(document.isFillTool);
    clear(document.isShapeTool);
    clear(document.isEyeDropper);
    clear(document.isSelectTool);
}

template <typename Flag>
void choose(DrawingDocument& document, Flag& flag) {
    flag = true;
    clearFlagsExcept(&flag, document);
}

}  // namespace

void chooseBrush(DrawingDocument& document) {
    clearFlagsExcept(nullptr, document);
    document.clearSelection();
}

void chooseEraser(DrawingDocument& document) {
    choose(document, document.isEraser);
    document.clearSelection();
}

void chooseFill(DrawingDocument& document) {
    choose(document, document.isFillTool);
    document.clearSelection();
}

void chooseEyeDropper(DrawingDocument& document) {
    choose(document, document.isEyeDropper);
    document.clearSelection();
}

void chooseSelect(DrawingDocument& document) { choose(document, document.isSelectTool); }

void chooseShape(DrawingDocument& document, Stroke::ShapeType type) {
    document.isShapeTool = true;
    document.currentShapeType = type;
    clearFlagsExcept(&document.isShapeTool, document);
    document.clearSelection();
}

bool isShapeChosen(const DrawingDocument& document, Stroke::ShapeType type) {
    return document.isShapeTool && document.currentShapeType == type;
}

}  // namespace marlevo
