#pragma once

#include <functional>

namespace marlevo {

/// Work for the user-interface thread.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Runs `work` on the user-interface thread after the current event; callable on any thread.
    /// Work posted by one thread runs in the order posted.
    virtual void post(std::function<void()> work) = 0;
};

}  // namespace marlevo
