#pragma once

#include "platform/BackgroundQueue.h"
#include "platform/WorkQueue.h"

#include <atomic>

namespace marlevo {

/// A background queue on one thread of the lowest priority. Work runs in the order posted.
/// Destruction waits for the work that has begun, so it must go before what that work uses.
class BackgroundThread final : public BackgroundQueue {
public:
    BackgroundThread();
    ~BackgroundThread() override { isEnding_ = true; }

    void post(std::function<void()> work) override;

private:
    std::atomic<bool> isEnding_ = false;
    WorkQueue queue_;  ///< last: its thread reads the flag
};

}  // namespace marlevo
