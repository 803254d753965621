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
    document.layers.modify([&](LayerList& layers) { layers.push_back(std::move(layer)); });
    document.activeLayerIndex = static_cast<std::int64_t>(document.layers->size()) - 1;
}

}  // namespace

ImageDrop::ImageDrop(DrawingDocument& document)
    : target_(std::make_shared<DrawingDocument*>(&document)) {}

bool ImageDrop::handleDrop(std::span<const std::unique_ptr<ItemProvider>> providers) {
    MainQueue* mainQueue = (*target_)->services().mainQueue;
    if (mainQueue == nullptr) return false;
    bool hasImage = false;
    for (const auto& provider : providers) {
        if (!provider->offersImage()) continue;
        hasImage = true;
        provider->loadImage([mainQueue, target = std::weak_ptr(target_)](auto file) {
            if (!file) return;
            mainQueue->post([target, bytes = std::move(*file)]() mutable {
                if (const auto document = target.lock())
                    addImageLayer(**document, std::move(bytes));
            });
        });
    }
    return hasImage;
}

}  // namespace marlevo
