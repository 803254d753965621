#pragma once

#include "model/Observation.h"

#include <functional>

namespace marlevo {

/// Runs a function at once, and again after each change of a property that it read the last time:
/// keeps what is shown equal to a document. The registry must outlive this object.
class Follower {
public:
    Follower(ChangeRegistry& registry, std::function<void()> show);

    /// Runs `show` now, for when the thing shown has changed in another way.
    void refresh() { reader_.observe(show_); }

private:
    std::function<void()> show_;
    Reader reader_;
};

}  // namespace marlevo
