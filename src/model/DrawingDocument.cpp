#include "model/DrawingDocument.h"

namespace marlevo {

DrawingDocument::DrawingDocument(const Services& services, ImageCache* imageCache)
    : layers(changeRegistry_, {}), activeLayerIndex(changeRegistry_, 0),
      currentStroke(changeRegistry_, {}), selectedColor(changeRegistry_, black),
      lineWidth(changeRegistry_, 3.0), brushOpacity(changeRegistry_, 1.0),
      isEraser(changeRegistry_, false), isFillTool(changeRegistry_, false),
      isShapeTool(changeRegistry_, false), isEyeDropper(changeRegistry_, false),
      isSelectTool(changeRegistry_, false),
      currentShapeType(changeRegistry_, Stroke::ShapeType::rect),
      selectedLayerID(changeRegistry_, {}), selectedStrokeIndex(changeRegistry_, {}),
      selectionDragStartPositions(changeRegistry_, {}), backgroundColor(changeRegistry_, white),
      backgroundIsTransparent(changeRegistry_, false), canvasSize(changeRegistry_, {1280, 720}),
      zoom(changeRegistry_, 1.0), showGrid(changeRegistry_, false),
      exportFormat(changeRegistry_, ExportFormat::png), showExportPopover(changeRegistry_, false),
      currentFileURL(changeRegistry_, {}), undoStack(changeRegistry_, {}),
      redoStack(changeRegistry_, {}), layerThumbnails(changeRegistry_, {}), services_(services),
      imageCache_(imageCache) {}

DrawingDocument::~DrawingDocument() = default;

const Layer* DrawingDocument::activeLayer() const {
    const LayerList& all = *layers;
    const std::int64_t index = *activeLayerIndex;
    return isValidIndex(index, all) ? &all[index] : nullptr;
}

bool DrawingDocument::isDrawingMode() const {
    // Short-circuit on purpose: a reader depends only on the flags that were evaluated.
    return !*isEraser && !*isFillTool && !*isShapeTool && !*isEyeDropper && !*isSelectTool;
}

void DrawingDocument::ensureLayers() {
    if (!layers->empty()) return;
    layers = LayerList{Layer("Background")};
    activeLayerIndex = 0;
}

}  // namespace marlevo
