#pragma once

#include <functional>

namespace marlevo {

/// Work that nobody waits for.
class BackgroundQueue {
public:
    virtual ~BackgroundQueue() = default;

    /// Runs `work` on some thread other than the caller's, when the machine has time for it.
    /// Callable on any thread. Work that has not begun when the queue goes away is dropped.
    virtual void post(std::function<void()> work) = 0;
};

}  // namespace marlevo
