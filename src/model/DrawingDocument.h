#pragma once

#include "graphics/RasterImage.h"
#include "model/CanvasSize.h"
#include "model/ExportFormat.h"
#include "model/LayerList.h"
#include "model/Property.h"
#include "platform/Services.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace marlevo {

class ImageCache;

/// Everything that one window shows and edits: the picture, the stroke in progress, the tool
/// settings, the selection, the view, the file and the history.
///
/// Used on the user-interface thread only. Operations report no errors: an invalid index, an absent
/// selection or an empty history changes nothing. Each property publishes its own changes to the
/// readers that have read it (Property.h). Operations publish before they are complete. A reader
/// must not change `layers` then, because operations do not read them again after each step.
///
/// The class holds stored state, its observation, the layers and the history. Everything else that
/// is done to a document is a free function, declared in the folder that defines it.
class DrawingDocument {
public:
    using Snapshot = LayerList;
    using P = DocumentProperty;

    /// The services and the image cache are borrowed and must outlive the document.
    explicit DrawingDocument(const Services& services = {}, ImageCache* imageCache = nullptr);
    ~DrawingDocument();
    DrawingDocument(const DrawingDocument&) = delete;
    DrawingDocument& operator=(const DrawingDocument&) = delete;

private:
    // Declared first: the properties keep a pointer to it.
    ChangeRegistry changeRegistry_;

public:
    // ---- Stored state ---------------------------------------------------------------------------
    Property<LayerList, P::layers, Publishing::always> layers;
    Property<std::int64_t, P::activeLayerIndex> activeLayerIndex;
    Property<std::optional<Stroke>, P::currentStroke, Publishing::always> currentStroke;
    Property<Color, P::selectedColor> selectedColor;
    Property<double, P::lineWidth> lineWidth;
    Property<double, P::brushOpacity> brushOpacity;
    Property<bool, P::isEraser> isEraser;
    Property<bool, P::isFillTool> isFillTool;
    Property<bool, P::isShapeTool> isShapeTool;
    Property<bool, P::isEyeDropper> isEyeDropper;
    Property<bool, P::isSelectTool> isSelectTool;
    Property<Stroke::ShapeType, P::currentShapeType> currentShapeType;
    Property<std::optional<Uuid>, P::selectedLayerID> selectedLayerID;
    Property<std::optional<std::int64_t>, P::selectedStrokeIndex> selectedStrokeIndex;
    Property<std::optional<PointList>, P::selectionDragStartPositions> selectionDragStartPositions;
    Property<Color, P::backgroundColor> backgroundColor;
    Property<bool, P::backgroundIsTransparent> backgroundIsTransparent;
    Property<CanvasSize, P::canvasSize> canvasSize;
    Property<double, P::zoom> zoom;
    Property<bool, P::showGrid> showGrid;
    Property<ExportFormat, P::exportFormat> exportFormat;    ///< no operation reads it
    Property<bool, P::showExportPopover> showExportPopover;  ///< no operation reads it
    Property<std::optional<std::filesystem::path>, P::currentFileURL> currentFileURL;

private:
    Property<std::vector<Snapshot>, P::undoStack, Publishing::always> undoStack;
    Property<std::vector<Snapshot>, P::redoStack, Publishing::always> redoStack;
    /// Emptied by changes; no operation reads it. The sidebar renders its thumbnails itself.
    Property<std::unordered_map<Uuid, RasterImage>, P::layerThumbnails> layerThumbnails;

public:
    /// For readers of this document's properties.
    ChangeRegistry& changeRegistry() { return changeRegistry_; }
    const Services& services() const { return services_; }

    /// The cache with which the document's picture is rendered. Null if the document borrows none:
    /// then each render decodes the images anew.
    ImageCache* imageCache() const { return imageCache_; }

    // ---- Layers (model/LayerOperations.cpp) -----------------------------------------------------
    /// The layer that receives new strokes, or null when `activeLayerIndex` names none. Valid until
    /// the next change of `layers`.
    const Layer* activeLayer() const;

    /// True when no tool flag is set: the brush draws.
    bool isDrawingMode() const;

    /// Adds a layer, "Background", if the list is empty.
    void ensureLayers();

    void addLayer();
    void deleteLayer(std::int64_t at);
    void moveLayer(std::int64_t from, std::int64_t to);
    void toggleLayerVisibility(std::int64_t index);
    void clearActiveLayer();
    void clearAll();
    void clearSelection();

    // ---- History (model/History.cpp) ------------------------------------------------------------
    /// Pushes the layers on the undo stack and empties the redo stack. To be called before a
    /// change.
    void saveState();
    void undo();
    void redo();

    /// Empties the history, for a picture that has just replaced another one; drops the stroke in
    /// progress.
    void startNewHistory();

    /// A reader of one of them depends on the stack.
    bool canUndo() const { return !undoStack->empty(); }
    bool canRedo() const { return !redoStack->empty(); }

private:
    /// Lowers `activeLayerIndex` to the last layer's; to −1 without layers.
    void clampActiveLayerIndex();

    template <typename Source, typename Target>
    void stepHistory(Source& source, Target& target);

    Services services_;
    ImageCache* imageCache_;
};

}  // namespace marlevo
