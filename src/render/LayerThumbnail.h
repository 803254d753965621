#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"
#include "model/CanvasSize.h"
#include "model/Layer.h"

#include <functional>
#include <memory>
#include <optional>

namespace marlevo {

class ImageCache;
struct Services;

/// The small picture of one layer for its row in the sidebar.
///
/// Rendered in the background from a copy of the layer, one render at a time; absent until the
/// first one has finished. Used on the user-interface thread. May be destroyed during a render,
/// whose result is then dropped. Without a main and a background queue there is never a picture.
class LayerThumbnail {
public:
    /// Twice the row's frame in each direction, for every shape of canvas and scale of screen.
    static constexpr Size size{88, 64};

    /// `onChange` is called after `cgImage` has changed and may destroy this object. The services
    /// and the cache must outlive it.
    LayerThumbnail(const Services& services, ImageCache& images, std::function<void()> onChange);
    LayerThumbnail(const LayerThumbnail&) = delete;
    LayerThumbnail& operator=(const LayerThumbnail&) = delete;

    /// Sets what is shown. To be called when the row appears and whenever the layer or the canvas
    /// may have changed; renders only if the picture can differ from the last one.
    void show(const Layer& layer, CanvasSize canvas);

    const std::optional<RasterImage>& cgImage() const { return cgImage_; }

private:
    /// All that the picture depends on.
    struct Contents {
        Layer layer;
        CanvasSize canvas;

        /// True if both are known to give the same picture, whatever their names and visibility.
        bool looksLike(const Contents& other) const;
    };

    void generate();
    void finish(std::optional<RasterImage> result);

    const Services& services_;
    ImageCache& images_;
    std::function<void()> onChange_;
    std::optional<RasterImage> cgImage_;
    std::optional<Contents> shown_;
    std::optional<Contents> rendered_;  ///< of the last render begun
    bool isRendering_ = false;

    /// Renders in the background hold it weakly: it expires with this object.
    std::shared_ptr<LayerThumbnail*> self_ = std::make_shared<LayerThumbnail*>(this);
};

}  // namespace marlevo
