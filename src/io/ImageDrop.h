#pragma once

#include "model/DrawingDocument.h"
#include "platform/ItemProvider.h"

#include <memory>
#include <mutex>
#include <span>

namespace marlevo {

/// Takes dropped images into a document. An image that is still loading at the destruction of this
/// object is discarded when its load ends. The main queue may no longer exist then.
class ImageDrop {
public:
    /// The document must outlive this object.
    explicit ImageDrop(DrawingDocument& document);
    ~ImageDrop();
    ImageDrop(const ImageDrop&) = delete;
    ImageDrop& operator=(const ImageDrop&) = delete;

    /// Begins to load all items that offer an image. True if there is one. Each image becomes a
    /// layer and one undo step when its load ends, on the user-interface thread. Items that deliver
    /// nothing change nothing.
    bool handleDrop(std::span<const std::unique_ptr<ItemProvider>> providers);

private:
    /// Shared with the loads. Written on the user-interface thread only.
    struct Target {
        std::mutex mutex;
        DrawingDocument* document = nullptr;  ///< null after the destruction
    };

    std::shared_ptr<Target> target_;
};

}  // namespace marlevo
