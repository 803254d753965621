#pragma once

#include "model/Bytes.h"
#include "model/PointList.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace marlevo {

/// A stroke as a document file holds it. The field names are the file's keys.
///
/// The file lists the points as x0, y0, x1, y1, …; the record keeps them as pairs, so that it
/// shares the block of the stroke it was made from. A last number without its partner is dropped on
/// reading.
struct StrokeData {
    PointList points;   ///< canvas pixels, y downwards
    double colorR = 0;  ///< sRGB components, not clamped
    double colorG = 0;
    double colorB = 0;
    double colorA = 0;
    double lineWidth = 0;  ///< canvas pixels
    double opacity = 0;
    bool isEraser = false;
    bool isFill = false;
    std::string shapeType;  ///< a name of Stroke::ShapeType, or any other text that a file brought

    friend bool operator==(const StrokeData&, const StrokeData&) = default;
};

/// A layer as a document file holds it.
struct LayerData {
    std::string name;  ///< UTF-8
    bool isVisible = false;
    double opacity = 0;
    std::optional<Bytes> imageData;  ///< the imported image file as it was; the key may be absent
    std::vector<StrokeData> strokes;

    friend bool operator==(const LayerData&, const LayerData&) = default;
};

/// The root of a document file: all that defines the picture. Plain values; nothing is checked but
/// their types, so sizes and components may be any finite number.
struct DocumentData {
    std::int64_t version = 1;  ///< written as 1; what a file says is read and not looked at
    double canvasWidth = 0;    ///< canvas pixels
    double canvasHeight = 0;
    double bgColorR = 0;
    double bgColorG = 0;
    double bgColorB = 0;
    double bgColorA = 0;
    bool bgTransparent = false;
    std::vector<LayerData> layers;  ///< index 0 lies lowest

    friend bool operator==(const DocumentData&, const DocumentData&) = default;
};

}  // namespace marlevo
