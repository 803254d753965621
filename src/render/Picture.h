#pragma once

#include "graphics/Color.h"
#include "model/CanvasSize.h"
#include "model/LayerList.h"

namespace marlevo {

/// All that a drawing's finished picture is made of. A copy shares the layers.
struct Picture {
    LayerList layers;
    CanvasSize canvasSize;
    Color background;  ///< `clear` if it is transparent
};

}  // namespace marlevo
