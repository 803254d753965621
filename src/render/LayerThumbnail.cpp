#include "render/LayerThumbnail.h"

#include "platform/BackgroundQueue.h"
#include "platform/ImageCodec.h"
#include "platform/MainQueue.h"
#include "render/LayerPainting.h"

#include <utility>

namespace marlevo {

namespace {

bool shareImage(const Layer& a, const Layer& b) {
    if (!a.imageData || !b.imageData) return a.imageData.has_value() == b.imageData.has_value();
    return a.imageData->sharesWith(*b.imageData) && a.opacity == b.opacity;
}

}  // namespace

bool LayerThumbnail::Contents::looksLike(const Contents& other) const {
    return canvas == other.canvas && layer.strokes.sharesWith(other.layer.strokes) &&
           shareImage(layer, other.layer);
}

LayerThumbnail::LayerThumbnail(const DrawingDocument& document, std::function<void()> onChange)
    : document_(document), onChange_(std::move(onChange)) {}

void LayerThumbnail::show(const Layer& layer) {
    shown_ = Contents{layer, document_.canvasSize};
    if (!isRendering_) generate();
}

void LayerThumbnail::generate() {
    const Services& services = document_.services();
    if (services.backgroundQueue == nullptr || services.mainQueue == nullptr) return;
    if (rendered_ && rendered_->looksLike(*shown_)) return;
    rendered_ = shown_;
    isRendering_ = true;

    // Pixels that the screen has decoded already are borrowed; the document is not touched later.
    std::optional<RasterImage> decoded;
    if (shown_->layer.imageData)
        decoded = document_.decodedImages().known(*shown_->layer.imageData);
    services.backgroundQueue->post([self = std::weak_ptr(self_), contents = *shown_, decoded,
                                    codec = services.imageCodec, mainQueue = services.mainQueue] {
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
    // Last: who is told may let go of this thumbnail.
    if (onChange_) onChange_();
}

}  // namespace marlevo
