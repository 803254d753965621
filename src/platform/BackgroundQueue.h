#pragma once

#include <functional>

namespace marlevo {

/// Runs work in the background.
class BackgroundQueue {
public:
    virtual ~BackgroundQueue() = default;

    /// Runs `work` on a thread other than the caller's, at low priority. Callable on any thread.
    /// Work that has not begun when the queue is destroyed is dropped.
    virtual void post(std::function<void()> work) = 0;
};

}  // namespace marlevo
