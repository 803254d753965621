#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"

#include <optional>

namespace marlevo {

class DrawingDocument;
struct Layer;

/// The document's whole picture at one pixel per canvas pixel. Nothing when the canvas is smaller
/// than 1 × 1 or too large for memory.
std::optional<RasterImage> renderCGImage(const DrawingDocument& document);

/// The picture in which a fill looks for its region: the same as renderCGImage().
std::optional<RasterImage> renderForFill(const DrawingDocument& document);

/// One layer on white, stretched from the document's canvas to `size`, as renderLayer() does.
std::optional<RasterImage> renderSingleLayer(const DrawingDocument& document, const Layer& layer,
                                             Size size);

}  // namespace marlevo
