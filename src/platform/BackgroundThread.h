#pragma once

#include "platform/BackgroundQueue.h"
#include "platform/WorkQueue.h"

#include <atomic>

namespace marlevo {

/// A background queue on one thread of the lowest priority. Work runs in the order posted.
/// The destructor waits for the work that has begun, so the objects which that work uses must
/// outlive the queue.
class BackgroundThread final : public BackgroundQueue {
public:
    BackgroundThread();
    ~BackgroundThread() override { isEnding_ = true; }

    void post(std::function<void()> work) override;

private:
    std::atomic<bool> isEnding_ = false;
    WorkQueue queue_;  ///< declared last: its thread reads the flag
};

}  // namespace marlevo
