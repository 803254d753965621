#pragma once

#include "model/DrawingDocument.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace marlevo {

/// A black, opaque stroke for tests.
inline Stroke makeStroke(PointList points, double lineWidth = 3,
                         Stroke::ShapeType shapeType = Stroke::ShapeType::freehand) {
    return {std::move(points), black, lineWidth, 1.0, false, false, shapeType};
}

inline void addStroke(DrawingDocument& document, const Stroke& stroke, std::size_t layer = 0) {
    document.layers.modifyAndPublish([&](LayerList& all) { all[layer].strokes.append(stroke); });
}

inline Layer imageLayer(std::vector<std::uint8_t> file, double opacity = 1) {
    Layer layer("Image");
    layer.imageData.emplace(std::move(file));
    layer.opacity = opacity;
    return layer;
}

inline void addLayer(DrawingDocument& document, const Layer& layer) {
    document.layers.modifyAndPublish([&](LayerList& all) { all.push_back(layer); });
}

}  // namespace marlevo
