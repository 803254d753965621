#include "io/ImageDrop.h"

#include "platform/MainQueue.h"

#include <utility>
#include <vector>

namespace marlevo {

namespace {

void addImageLayer(DrawingDocument& document, std::vector<std::uint8_t> file) {
    document.saveState();
    Layer layer("Image");
    layer.imageData.emplace(std::move(file));
    document.layers.modifyAndPublish(
        [&](LayerList& layers) { layers.push_back(std::move(layer)); });
    document.activeLayerIndex = static_cast<std::int64_t>(document.layers->size()) - 1;
}

}  // namespace

ImageDrop::ImageDrop(DrawingDocument& document) : target_(std::make_shared<Target>()) {
    target_->document = &document;
}

ImageDrop::~ImageDrop() {
    const std::lock_guard lock(target_->mutex);
    target_->document = nullptr;
}

bool ImageDrop::handleDrop(std::span<const std::unique_ptr<ItemProvider>> providers) {
    if (target_->document->services().mainQueue == nullptr) return false;
    bool hasImage = false;
    for (const auto& provider : providers) {
        if (!provider->offersImage()) continue;
        hasImage = true;
        provider->loadImage([target = target_](auto file) {
            if (!file) return;
            // Keeps the document, and with it the main queue, until the image is posted.
            const std::lock_guard lock(target->mutex);
            if (target->document == nullptr) return;
            target->document->services().mainQueue->post(
                [target, bytes = std::move(*file)]() mutable {
                    if (target->document != nullptr)
                        addImageLayer(*target->document, std::move(bytes));
                });
        });
    }
    return hasImage;
}

}  // namespace marlevo
