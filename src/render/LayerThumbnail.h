#pragma once

#include "graphics/RasterImage.h"
#include "model/DrawingDocument.h"

#include <functional>
#include <memory>
#include <optional>

namespace marlevo {

/// The small picture of one layer that its row in the sidebar shows.
///
/// Rendered in the background from a copy of the layer, at most once at a time; absent until the
/// first render is back. Used on the user-interface thread; may go away while a render is under
/// way, which is then thrown away. Without a main and a background queue there is never a picture.
class LayerThumbnail {
public:
    /// Twice the row's frame in each direction, whatever the canvas's shape and the screen's scale.
    static constexpr Size size{88, 64};

    /// `onChange` is called when a render has changed `cgImage`. The document must outlive this.
    LayerThumbnail(const DrawingDocument& document, std::function<void()> onChange);
    LayerThumbnail(const LayerThumbnail&) = delete;
    LayerThumbnail& operator=(const LayerThumbnail&) = delete;

    /// Tells what the row shows: when it appears and whenever the layer or the canvas may have
    /// changed. Renders only if the picture would be another one, which sharing tells.
    void show(const Layer& layer);

    const std::optional<RasterImage>& cgImage() const { return cgImage_; }

private:
    /// What a picture is made of.
    struct Contents {
        Layer layer;
        CanvasSize canvas;

        /// Whether both are known to give the same picture. Names and visibility do not matter.
        bool looksLike(const Contents& other) const;
    };

    void generate();
    void finish(std::optional<RasterImage> result);

    const DrawingDocument& document_;
    std::function<void()> onChange_;
    std::optional<RasterImage> cgImage_;
    std::optional<Contents> shown_;
    std::optional<Contents> rendered_;  ///< of the last render begun
    bool isRendering_ = false;

    /// What a render in the background knows this thumbnail by; gone when the thumbnail is.
    std::shared_ptr<LayerThumbnail*> self_ = std::make_shared<LayerThumbnail*>(this);
};

}  // namespace marlevo
