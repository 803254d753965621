#pragma once

#include "platform/BackgroundQueue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace marlevo {

/// A background queue on one thread of the lowest priority. Work runs in the order posted.
/// Destruction waits for the work that has begun, so it must go before what that work uses.
class BackgroundThread final : public BackgroundQueue {
public:
    BackgroundThread();

    void post(std::function<void()> work) override;

private:
    void run(const std::stop_token& stop);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::deque<std::function<void()>> waiting_;
    std::jthread thread_;  ///< last: joined before the rest goes
};

}  // namespace marlevo
