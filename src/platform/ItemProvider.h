#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace marlevo {

/// One item of a drop on the program.
class ItemProvider {
public:
    /// Receives the unchanged bytes of an image file, or nothing if they cannot be loaded. Called
    /// once, on any thread.
    using Completion = std::function<void(std::optional<std::vector<std::uint8_t>>)>;

    virtual ~ItemProvider() = default;

    /// Whether the item is declared to be an image. Its bytes are not read.
    virtual bool offersImage() const = 0;

    /// Begins to load the item's image and returns at once. The load continues when the provider
    /// is destroyed.
    virtual void loadImage(Completion completion) = 0;
};

}  // namespace marlevo
