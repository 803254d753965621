#pragma once

#include "model/DrawingDocument.h"
#include "platform/ItemProvider.h"

#include <memory>
#include <span>

namespace marlevo {

/// Takes dropped images into a document. Images that are still loading when this object goes away
/// are dropped for good.
class ImageDrop {
public:
    /// The document must outlive this object.
    explicit ImageDrop(DrawingDocument& document);

    /// Begins to load every item that offers an image; true when there is one. Each image becomes
    /// a layer of its own and one undo step when its bytes are there, in the order in which the
    /// loads end, on the user-interface thread. Items that deliver nothing change nothing.
    bool handleDrop(std::span<const std::unique_ptr<ItemProvider>> providers);

private:
    /// Shared with the loads, which find it empty when nobody waits for them any more.
    std::shared_ptr<DrawingDocument*> target_;
};

}  // namespace marlevo
