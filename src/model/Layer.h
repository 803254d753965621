#pragma once

#include "model/Bytes.h"
#include "model/StrokeList.h"
#include "model/Uuid.h"

#include <optional>
#include <string>

namespace marlevo {

/// One sheet of the picture. A value: a copy shares strokes and image and is independent of later
/// changes to either.
struct Layer {
    explicit Layer(std::string layerName) : name(std::move(layerName)) {}

    Uuid id = Uuid::random();  ///< kept for life, also by copies
    std::string name;
    StrokeList strokes;  ///< in drawing order
    bool isVisible = true;
    double opacity = 1.0;  ///< of the image only; each stroke has its own
    bool isLocked = false;
    std::optional<Bytes> thumbnail;
    std::optional<Bytes> imageData;  ///< an encoded image file, drawn below the strokes
};

}  // namespace marlevo
