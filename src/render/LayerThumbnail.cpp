#include "render/LayerThumbnail.h"

#include "model/ImageCache.h"
#include "platform/BackgroundQueue.h"
#include "platform/ImageCodec.h"
#include "platform/MainQueue.h"
#include "platform/Services.h"
#include "render/LayerPainting.h"

#include <utility>

namespace marlevo {

namespace {

/// Unlike a comparison of the files alone: the opacity is part of what the thumbnail shows.
bool shareImageAndOpacity(const Layer& a, const Layer& b) {
    if (!a.imageData || !b.imageData) return a.imageData.has_value() == b.imageData.has_value();
    return a.imageData->sharesWith(*b.imageData) && a.opacity == b.opacity;
}

}  // namespace

bool LayerThumbnail::Contents::looksLike(const Contents& other) const {
    return canvas == other.canvas && layer.strokes.sharesWith(other.layer.strokes) &&
           shareImageAndOpacity(layer, other.layer);
}

LayerThumbnail::LayerThumbnail(const Services& services, ImageCache& images,
                               std::function<void()> onChange)
    : services_(services), images_(images), onChange_(std::move(onChange)) {}

void LayerThumbnail::show(const Layer& layer, CanvasSize canvas) {
    shown_ = Contents{layer, canvas};
    if (!isRendering_) generate();
}

void LayerThumbnail::generate() {
    if (services_.backgroundQueue == nullptr || services_.mainQueue == nullptr) return;
    if (rendered_ && rendered_->looksLike(*shown_)) return;
    rendered_ = shown_;
    isRendering_ = true;

    // The cache belongs to this thread: an image in it is passed to the render, which decodes any
    // other itself.
    std::optional<RasterImage> decoded;
    if (shown_->layer.imageData) decoded = images_.known(*shown_->layer.imageData);
    services_.backgroundQueue->post([self = std::weak_ptr(self_), contents = *shown_, decoded,
                                     codec = services_.imageCodec,
                                     mainQueue = services_.mainQueue] {
        if (self.expired()) return;
        auto result = renderLayer(contents.layer, contents.canvas, size, [&](const Bytes& file) {
            if (decoded || codec == nullptr) return decoded;
            return codec->decode(file.span());
        });
        mainQueue->post([self, result = std::move(result)] {
            if (const auto thumbnail = self.lock()) (*thumbnail)->finish(result);
        });
    });
}

void LayerThumbnail::finish(std::optional<RasterImage> result) {
    isRendering_ = false;
    cgImage_ = std::move(result);
    generate();
    // The last statement, because the callback may destroy this object.
    if (onChange_) onChange_();
}

}  // namespace marlevo
