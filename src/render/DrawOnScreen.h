#pragma once

#include "graphics/BitmapContext.h"
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

/// Adds pixels that drawing the stroke covers wholly and opaquely; false when all that it touches
/// was covered already.
inline bool coverOnScreen(BitmapContext& context, const Stroke& stroke, CoveredPixels& covered) {
    if (stroke.isFill || stroke.points.size() < 2) return true;
    context.setAlpha(stroke.opacity);
    const bool isSeen = context.addCovered(stroke.path(), stroke.color, stroke.lineWidth, covered);
    context.setAlpha(1);
    return isSeen;
}

}  // namespace marlevo
