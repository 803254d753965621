#pragma once

#include "model/Bytes.h"
#include "model/PointList.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace marlevo {

/// A stroke of a document file. The names of the members are the file's keys.
///
/// The file lists the points as x0, y0, x1, y1, …; the record has pairs, so that it shares the
/// block of points with its stroke. Reading drops a last x without y.
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
    std::string shapeType;  ///< a name of Stroke::ShapeType, or any other text from a file

    friend bool operator==(const StrokeData&, const StrokeData&) = default;
};

/// A layer of a document file.
struct LayerData {
    std::string name;  ///< UTF-8
    bool isVisible = false;
    double opacity = 0;
    std::optional<Bytes> imageData;  ///< the unchanged image file; the key may be absent
    std::vector<StrokeData> strokes;

    friend bool operator==(const LayerData&, const LayerData&) = default;
};

/// The root of a document file: all values that define the picture. Only the types are checked, so
/// sizes and components can be any finite number.
struct DocumentData {
    std::int64_t version = 1;  ///< always written as 1; a file's version is read and not used
    double canvasWidth = 0;    ///< canvas pixels
    double canvasHeight = 0;
    double bgColorR = 0;
    double bgColorG = 0;
    double bgColorB = 0;
    double bgColorA = 0;
    bool bgTransparent = false;
    std::vector<LayerData> layers;  ///< index 0 is the lowest

    friend bool operator==(const DocumentData&, const DocumentData&) = default;
};

}  // namespace marlevo
