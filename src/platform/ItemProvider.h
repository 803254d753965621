#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace marlevo {

/// One of the things that were dropped on the program.
class ItemProvider {
public:
    /// Receives the bytes of an image file exactly as they are; nothing when they cannot be had.
    /// Called once, on a thread of the provider's choosing.
    using Completion = std::function<void(std::optional<std::vector<std::uint8_t>>)>;

    virtual ~ItemProvider() = default;

    /// Whether the item is declared to be an image; what its bytes are is not looked at.
    virtual bool offersImage() const = 0;

    /// Begins to load the item's image and returns at once. The load goes on when the provider
    /// goes away.
    virtual void loadImage(Completion completion) = 0;
};

}  // namespace marlevo
