#pragma once

#include <queue>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>

namespace marlevo {

/// Runs work off the user-interface thread: one piece after the other, in the order posted, on a
/// thread of its own.
class WorkQueue {
public:
    /// How the destructor treats work that is not done yet. In both cases all of it is done, unless
    /// the program ends before.
    enum class AtEnd : unsigned char {
        wait,   ///< returns when all is done
        detach  ///< returns at once; neither the caller nor the program's end waits for the thread
    };

    /// When the system has no thread left, the queue does all work within post().
    explicit WorkQueue(AtEnd atEnd = AtEnd::wait);
    ~WorkQueue();
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;

    /// Callable on any thread, also from within the work.
    void post(std::function<void()> work);

    /// Waits until the work posted before is done. Not from within the work.
    void wait();

    /// Waits until the work posted before is done, at most for `limit`. Returns true if it is. Not
    /// from within the work.
    bool waitFor(std::chrono::milliseconds limit);

private:
    /// Shared with the thread, which may outlive the queue.
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        std::queue<std::function<void()>> waiting;
        bool isClosing = false;
    };

    static void run(State& state);
    std::future<void> afterAllWork();

    AtEnd atEnd_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
    std::thread thread_;
};

}  // namespace marlevo
