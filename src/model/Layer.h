#pragma once

#include "model/Bytes.h"
#include "model/StrokeList.h"
#include "model/Uuid.h"

#include <optional>
#include <string>

namespace marlevo {

/// One layer of the picture. A value: a copy shares strokes and image and is independent of later
/// changes to either.
struct Layer {
    explicit Layer(std::string layerName) : name(std::move(layerName)) {}

    Uuid id = Uuid::random();  ///< never changes; copies have the same
    std::string name;
    StrokeList strokes;  ///< in drawing order
    bool isVisible = true;
    double opacity = 1.0;            ///< of the image only; each stroke has its own
    bool isLocked = false;           ///< stored only: no operation reads it
    std::optional<Bytes> thumbnail;  ///< stored only: no operation reads it
    std::optional<Bytes> imageData;  ///< an encoded image file, drawn below the strokes
};

}  // namespace marlevo
