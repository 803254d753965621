#include "platform/BackgroundThread.h"

#include <sys/resource.h>
#include <utility>

namespace marlevo {

namespace {

void yieldToAllOthers() {
    // On Linux niceness is the thread's own. Should it fail, the work merely competes.
    constexpr int callingThread = 0;
    constexpr int lowestPriority = 19;
    setpriority(PRIO_PROCESS, callingThread, lowestPriority);
}

}  // namespace

BackgroundThread::BackgroundThread()
    : thread_([this](const std::stop_token& stop) { run(stop); }) {}

void BackgroundThread::post(std::function<void()> work) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
}

void BackgroundThread::run(const std::stop_token& stop) {
    yieldToAllOthers();
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return !waiting_.empty(); })) {
        if (stop.stop_requested()) return;
        const std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        work();
        lock.lock();
    }
}

}  // namespace marlevo
