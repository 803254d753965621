#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"
#include "model/ImageCache.h"
#include "render/Scene.h"

#include <optional>

namespace marlevo {

class DrawingDocument;

/// The whole picture at one pixel per canvas pixel. Nothing when the canvas is smaller than 1 × 1
/// or too large for memory.
std::optional<RasterImage> renderPicture(const Picture& picture, ImageCache& images);

// The only functions of render/ that read a document.

/// The document's finished picture: without the grid and the stroke in progress.
Picture pictureOf(const DrawingDocument& document);

/// All that a window shows of the document, at `scale` device pixels per canvas pixel. Refers to
/// the document's stroke in progress.
Scene sceneOf(const DrawingDocument& document, double scale);

/// renderPicture() of the document's picture.
std::optional<RasterImage> renderCGImage(const DrawingDocument& document);

/// The picture that a fill reads: the same as renderCGImage().
std::optional<RasterImage> renderForFill(const DrawingDocument& document);

/// renderLayer() of one layer, stretched from the document's canvas to `size`.
std::optional<RasterImage> renderSingleLayer(const DrawingDocument& document, const Layer& layer,
                                             Size size);

/// The image cache to render a document's picture with: the document's own, or, for a document
/// without one, a cache with the lifetime of this object.
class BorrowedImages {
public:
    explicit BorrowedImages(const DrawingDocument& document);

    ImageCache& cache() { return lent_ ? *lent_ : own_; }

private:
    ImageCache own_;
    ImageCache* lent_;
};

}  // namespace marlevo
