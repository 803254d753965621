#pragma once

#include "model/Observation.h"

#include <functional>

namespace marlevo {

/// Runs a function at once, and again after each change of a property that its last run read. So
/// what the function shows stays equal to a document. The registry must outlive this object.
class Follower {
public:
    Follower(ChangeRegistry& registry, std::function<void()> show);

    /// Runs `show` now. For changes that no property publishes.
    void refresh() { reader_.observe(show_); }

private:
    std::function<void()> show_;
    Reader reader_;
};

}  // namespace marlevo
