#pragma once

#include "graphics/GraphicsContext.h"
#include "graphics/PixelBuffer.h"
#include "model/Stroke.h"

#include <span>

namespace marlevo {

/// Draws a stroke in a frame whose y grows downwards, as the screen shows it: the path that
/// Stroke::path() returns. Nothing for fewer than two points.
void drawStrokeOnScreen(GraphicsContext& context, const Stroke& stroke);

/// The same for each of the strokes that touches the part, at `scale` device pixels per canvas
/// pixel.
void drawStrokesOnScreen(const PixelBuffer& part, std::span<const Stroke* const> strokes,
                         double scale);

/// Draws a stroke in a frame whose y grows upwards: canvas y = `height` is at 0. The stroke must
/// have at least two points; a line runs to the second.
void drawStroke(GraphicsContext& context, const Stroke& stroke, double height);

}  // namespace marlevo
