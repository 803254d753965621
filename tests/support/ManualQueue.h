#pragma once

#include "platform/BackgroundQueue.h"
#include "platform/MainQueue.h"

#include <deque>
#include <mutex>
#include <utility>

namespace marlevo {

/// A queue that runs its work in run(), on the calling thread. post() is thread-safe.
template <typename Queue>
class ManualQueue : public Queue {
public:
    void post(std::function<void()> work) override {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(work));
    }

    std::size_t size() const {
        const std::lock_guard lock(mutex_);
        return waiting_.size();
    }

    /// Runs the work that has been posted so far. False if there is none.
    bool run() {
        std::deque<std::function<void()>> work;
        {
            const std::lock_guard lock(mutex_);
            work.swap(waiting_);
        }
        for (const auto& each : work)
            each();
        return !work.empty();
    }

private:
    mutable std::mutex mutex_;
    std::deque<std::function<void()>> waiting_;
};

using ManualMainQueue = ManualQueue<MainQueue>;
using ManualBackgroundQueue = ManualQueue<BackgroundQueue>;

}  // namespace marlevo
