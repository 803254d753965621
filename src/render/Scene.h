#pragma once

#include "model/Stroke.h"
#include "render/Picture.h"

namespace marlevo {

/// All that a window shows of a drawing, apart from the selection.
struct Scene {
    Picture picture;
    bool showsGrid = false;
    double scale = 0;  ///< device pixels per canvas pixel

    /// Null without one. Not owned, and used during a call only: a copy that is kept would share
    /// the stroke's points, and each further point would then copy all of them.
    const Stroke* strokeInProgress = nullptr;

    /// The layers are those of a moment of a drag, which no undo returns to.
    bool isPassing = false;
};

}  // namespace marlevo
