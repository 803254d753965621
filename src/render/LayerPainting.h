#pragma once

#include "graphics/GraphicsContext.h"
#include "model/CanvasSize.h"
#include "model/LayerList.h"

#include <functional>
#include <optional>

namespace marlevo {

/// Gives the picture in an image file; nothing when it is none.
using ImageDecoder = std::function<std::optional<RasterImage>(const Bytes& file)>;

// The painting steps, in a frame whose y grows upwards: canvas y = `height` lies at 0. They know no
// document and may run on any thread that owns what they are given.

/// Draws the visible layers from the lowest to the topmost.
void drawLayers(GraphicsContext& context, const LayerList& layers, CanvasSize canvas, double height,
                const ImageDecoder& decode);

/// Draws the layer's image, then its strokes of at least two points; visible or not.
void drawLayer(GraphicsContext& context, const Layer& layer, CanvasSize canvas, double height,
               const ImageDecoder& decode);

/// Draws the layer's image over the canvas at the layer's opacity.
void drawLayerImageIfPresent(GraphicsContext& context, const Layer& layer, CanvasSize canvas,
                             double height, const ImageDecoder& decode);

/// The stroke must have at least two points; a line runs to the second.
void drawStroke(GraphicsContext& context, const Stroke& stroke, double height);

/// The layer on white, stretched from the canvas to `size`, whose sides are truncated to whole
/// pixels; its visibility does not matter. Nothing when a side is below 1 or memory is short.
std::optional<RasterImage> renderLayer(const Layer& layer, CanvasSize canvas, Size size,
                                       const ImageDecoder& decode);

}  // namespace marlevo
