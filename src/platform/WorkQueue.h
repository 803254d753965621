#pragma once

#include <queue>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace marlevo {

/// Work off the user-interface thread: one piece after the other, in the order posted, on a thread
/// of its own. Its destruction waits until everything posted is done.
class WorkQueue {
public:
    WorkQueue();
    ~WorkQueue();
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;

    /// Callable on any thread, also from within the work.
    void post(std::function<void()> work);

private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::queue<std::function<void()>> waiting_;
    bool isClosing_ = false;
    std::thread thread_;  ///< last: it uses all of the above
};

}  // namespace marlevo
