#pragma once

#include "graphics/GraphicsContext.h"
#include "model/Stroke.h"

namespace marlevo {

/// Draws as the screen does: the path as Stroke gives it, at the stroke's own opacity. Nothing for
/// fewer than two points.
inline void drawOnScreen(GraphicsContext& context, const Stroke& stroke) {
    if (stroke.points.size() < 2) return;
    context.setAlpha(stroke.opacity);
    if (stroke.isFill) {
        context.fillPath(stroke.path(), stroke.color);
    } else {
        context.strokePath(stroke.path(), stroke.color, stroke.lineWidth);
    }
    context.setAlpha(1);
}

}  // namespace marlevo
