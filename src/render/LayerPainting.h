#pragma once

#include "graphics/GraphicsContext.h"
#include "model/CanvasSize.h"
#include "model/LayerList.h"

#include <functional>
#include <optional>

namespace marlevo {

/// The image in a file; nothing when the file cannot be decoded.
using ImageDecoder = std::function<std::optional<RasterImage>(const Bytes& file)>;

// The steps of painting a picture, in a frame whose y grows upwards: canvas y = `height` is at 0.
// They may run on any thread that owns the arguments.

/// Draws the visible layers from the lowest to the topmost.
void drawLayers(GraphicsContext& context, const LayerList& layers, CanvasSize canvas, double height,
                const ImageDecoder& decode);

/// Draws the layer's image, then its strokes of at least two points; visible or not.
void drawLayer(GraphicsContext& context, const Layer& layer, CanvasSize canvas, double height,
               const ImageDecoder& decode);

/// Draws the layer's image over the canvas at the layer's opacity.
void drawLayerImageIfPresent(GraphicsContext& context, const Layer& layer, CanvasSize canvas,
                             double height, const ImageDecoder& decode);

/// The layer on white, stretched from the canvas to `size`, whose sides are truncated to whole
/// pixels; its visibility does not matter. Nothing when a side is below 1 or memory is short.
std::optional<RasterImage> renderLayer(const Layer& layer, CanvasSize canvas, Size size,
                                       const ImageDecoder& decode);

}  // namespace marlevo
