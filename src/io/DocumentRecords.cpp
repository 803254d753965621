#include "io/DocumentRecords.h"

#include "io/DocumentData.h"
#include "model/DrawingDocument.h"

#include <algorithm>
#include <utility>

namespace marlevo {

namespace {

Stroke::ShapeType shapeTypeNamed(std::string_view name) {
    const auto* const found = std::ranges::find(
        Stroke::allShapeTypes, name, [](Stroke::ShapeType type) { return rawValue(type); });
    return found == Stroke::allShapeTypes.end() ? Stroke::ShapeType::freehand : *found;
}

Stroke decodeStroke(const StrokeData& data) {
    return {.points = data.points,
            .color = {data.colorR, data.colorG, data.colorB, data.colorA},
            .lineWidth = data.lineWidth,
            .opacity = data.opacity,
            .isEraser = data.isEraser,
            .isFill = data.isFill,
            .shapeType = shapeTypeNamed(data.shapeType)};
}

Layer decodeLayer(const LayerData& data) {
    Layer layer(data.name);
    layer.isVisible = data.isVisible;
    layer.opacity = data.opacity;
    layer.imageData = data.imageData;
    std::vector<Stroke> strokes;
    strokes.reserve(data.strokes.size());
    std::ranges::transform(data.strokes, std::back_inserter(strokes), decodeStroke);
    layer.strokes = StrokeList(std::move(strokes));
    return layer;
}

StrokeData encodeStroke(const Stroke& stroke) {
    return {.points = stroke.points,
            .colorR = stroke.color.red,
            .colorG = stroke.color.green,
            .colorB = stroke.color.blue,
            .colorA = stroke.color.alpha,
            .lineWidth = stroke.lineWidth,
            .opacity = stroke.opacity,
            .isEraser = stroke.isEraser,
            .isFill = stroke.isFill,
            .shapeType = std::string(rawValue(stroke.shapeType))};
}

}  // namespace

DocumentSnapshot snapshotOf(const DrawingDocument& document) {
    return {document.canvasSize, document.backgroundColor, document.backgroundIsTransparent,
            document.layers};
}

DocumentData encodeDocumentData(const DocumentSnapshot& snapshot) {
    DocumentData data{.version = 1,
                      .canvasWidth = snapshot.canvasSize.width,
                      .canvasHeight = snapshot.canvasSize.height,
                      .bgColorR = snapshot.backgroundColor.red,
                      .bgColorG = snapshot.backgroundColor.green,
                      .bgColorB = snapshot.backgroundColor.blue,
                      .bgColorA = snapshot.backgroundColor.alpha,
                      .bgTransparent = snapshot.backgroundIsTransparent,
                      .layers = {}};
    data.layers.reserve(snapshot.layers.size());
    for (const Layer& layer : snapshot.layers) {
        LayerData& layerData = data.layers.emplace_back();
        layerData.name = layer.name;
        layerData.isVisible = layer.isVisible;
        layerData.opacity = layer.opacity;
        layerData.imageData = layer.imageData;
        layerData.strokes.reserve(layer.strokes.size());
        std::ranges::transform(layer.strokes, std::back_inserter(layerData.strokes), encodeStroke);
    }
    return data;
}

DocumentData encodeDocumentData(const DrawingDocument& document) {
    return encodeDocumentData(snapshotOf(document));
}

void applyDocumentData(DrawingDocument& document, const DocumentData& data) {
    // Each assignment publishes. Readers may rely on the order.
    document.canvasSize = {data.canvasWidth, data.canvasHeight};
    document.backgroundColor = {data.bgColorR, data.bgColorG, data.bgColorB, data.bgColorA};
    document.backgroundIsTransparent = data.bgTransparent;
    LayerList loaded;
    std::ranges::transform(data.layers, std::back_inserter(loaded), decodeLayer);
    document.layers = std::move(loaded);
    document.activeLayerIndex = 0;
    document.zoom = 1.0;
    document.startNewHistory();
}

}  // namespace marlevo
