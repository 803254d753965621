#pragma once

#include "graphics/GraphicsContext.h"
#include "graphics/RasterImage.h"
#include "model/CanvasSize.h"
#include "model/DecodedImages.h"
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

struct DocumentData;  // io/DocumentData.h
struct StrokeData;

/// Everything that one window shows and edits: the picture, the stroke in progress, the tool
/// settings, the selection, the view, the file and the history.
///
/// Used on the user-interface thread only. Operations never report errors: an invalid index, an
/// absent selection or an empty history changes nothing. Each property publishes its own changes to
/// the readers that read it (Property.h).
/// A reader that is told in the middle of an operation must not change `layers`: operations do not
/// look at them again after each step.
///
/// Declared here as a whole; an operation is defined in the folder of its subsystem, as the group
/// comments say.
class DrawingDocument {
public:
    using Snapshot = LayerList;
    using P = DocumentProperty;

    explicit DrawingDocument(const Services& services = {});
    ~DrawingDocument();
    DrawingDocument(const DrawingDocument&) = delete;
    DrawingDocument& operator=(const DrawingDocument&) = delete;

private:
    // First, since every property holds on to it.
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
    Property<ExportFormat, P::exportFormat> exportFormat;
    Property<bool, P::showExportPopover> showExportPopover;
    Property<std::optional<std::filesystem::path>, P::currentFileURL> currentFileURL;

private:
    Property<std::vector<Snapshot>, P::undoStack, Publishing::always> undoStack;
    Property<std::vector<Snapshot>, P::redoStack, Publishing::always> redoStack;
    Property<std::unordered_map<Uuid, RasterImage>, P::layerThumbnails> layerThumbnails;

public:
    /// To make a Reader of this document's properties.
    ChangeRegistry& changeRegistry() { return changeRegistry_; }
    const Services& services() const { return services_; }

    /// The decoded images of the layers; what it holds is no state of the document.
    DecodedImages& decodedImages() const { return decodedImages_; }

    // ---- Layers and history (model/) ------------------------------------------------------------
    /// The layer that receives new strokes, or null when `activeLayerIndex` names none. Valid until
    /// the next change of `layers`.
    const Layer* activeLayer() const;

    /// True when no tool flag is set: the brush draws.
    bool isDrawingMode() const;

    /// Makes sure that there is a layer.
    void ensureLayers();

    void addLayer();
    void deleteLayer(std::int64_t at);
    void moveLayer(std::int64_t from, std::int64_t to);
    void toggleLayerVisibility(std::int64_t index);
    void clearActiveLayer();
    void clearAll();

    /// Puts the layers on the undo stack and empties the redo stack; to be called before a change.
    void saveState();
    void undo();
    void redo();

    /// Readings of the history's stacks, which count as reading the stack.
    bool canUndo() const { return !undoStack->empty(); }
    bool canRedo() const { return !redoStack->empty(); }

    // ---- Stroke capture (tools/StrokeCapture.cpp); positions in canvas pixels -------------------
    void beginStroke(Point at);
    void addPointToStroke(Point point);
    void endStroke();

    // ---- Selection of one stroke (tools/Selection.cpp) ------------------------------------------
    // A selection that names no stroke, since the layers changed under it, is no selection here.

    /// Selects the stroke under the point, or nothing when there is none.
    void selectStroke(Point at);

    /// The outline around the selected stroke, in canvas pixels.
    std::optional<Rect> selectedStrokeBoundingRect() const;

    void beginSelectDrag();
    /// Places the stroke where the whole movement since the drag began puts it.
    void updateSelectDrag(Size translation);
    void endSelectDrag();
    void deleteSelectedStroke();

    // ---- Fill and eyedropper (tools/FillTool.cpp, tools/EyeDropper.cpp) -------------------------
    /// Covers the region of similar colour around the point by a filled stroke on its own layer.
    void performFill(Point at);

    /// Makes the colour of the rendered picture at the point the selected one, opaque, and turns
    /// the eyedropper off; a point outside changes nothing.
    void pickColor(Point at);

    // ---- Rendering (render/RasterCompositing.cpp) -----------------------------------------------
    /// The whole picture at one pixel per canvas pixel; nothing when the canvas is smaller than
    /// 1 × 1 or too large for memory.
    std::optional<RasterImage> renderCGImage() const;

    /// One layer on white, stretched to the given size; its visibility does not matter.
    std::optional<RasterImage> renderSingleLayer(const Layer& layer, Size size) const;

    // ---- Document file (io/DocumentRecords.cpp) -------------------------------------------------
    /// The picture as a file holds it. Costs little: points and images are shared.
    DocumentData encodeDocumentData() const;

    /// Replaces the picture, shows it unzoomed with its lowest layer active, and starts a new
    /// history. Tools, selection and file stay; every layer gets a new identity.
    void applyDocumentData(const DocumentData& data);

    // ---- Save (io/Save.cpp) ---------------------------------------------------------------------
    /// Writes the drawing to the file, in place and whole, and makes it the document's file. A
    /// failure is one line "Save failed: …" on the console and changes nothing.
    void writeDocument(const std::filesystem::path& to);

    /// Writes to the document's file; without one, asks as saveAs() does.
    void save();

    /// Asks for a file in a save panel, then writes to it.
    void saveAs();

    // ---- Export, print, clipboard (io/) ---------------------------------------------------------
    /// The name that a panel proposes for the picture, such as "Drawing-1280x720.png".
    std::string proposedPictureName(ExportFormat format) const;

    /// Writes the picture to the file, replacing it. Failures are silent.
    void exportTo(const std::filesystem::path& file, ExportFormat format);

    /// Asks for a file in a save panel, then exports to it.
    void performExport(ExportFormat format);

    /// The picture as a PDF file of one page, one point a canvas pixel, strokes as paths. Nothing
    /// when a page cannot have the canvas's size (PdfContext::isPageSize) or memory is short.
    std::optional<std::vector<std::uint8_t>> renderPDFData() const;

    /// Sends the picture to the print dialog, after the current event. Failures are silent.
    void printDocument();

    /// Replaces the pasteboard's contents by the picture; leaves them when there is no picture.
    void copyToClipboard();

private:
    /// Lowers `activeLayerIndex` to the last layer's; to −1 when there is none.
    void clampActiveLayerIndex();

    /// Where a stroke is: its layer's index and its own.
    struct StrokePlace {
        std::size_t layer;
        std::size_t stroke;
    };
    std::optional<StrokePlace> selectedStroke() const;
    void clearSelection();

    template <typename Source, typename Target>
    void stepHistory(Source& source, Target& target);

    static StrokeData encodeStroke(const Stroke& stroke);

    std::optional<RasterImage> renderForFill() const;

    /// Draws the visible layers in a frame whose y grows upwards; canvas y = `height` lies at 0.
    void drawLayers(GraphicsContext& context, double height) const;

    Services services_;
    mutable DecodedImages decodedImages_;
};

}  // namespace marlevo
