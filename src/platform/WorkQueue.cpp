#include "platform/WorkQueue.h"

#include <utility>

namespace marlevo {

WorkQueue::WorkQueue() : thread_([this] { run(); }) {}

WorkQueue::~WorkQueue() {
    {
        const std::lock_guard lock(mutex_);
        isClosing_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void WorkQueue::post(std::function<void()> work) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push(std::move(work));
    }
    changed_.notify_one();
}

void WorkQueue::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return isClosing_ || !waiting_.empty(); });
        if (waiting_.empty()) return;
        std::function<void()> work = std::move(waiting_.front());
        waiting_.pop();
        lock.unlock();
        work();
        work = nullptr;  // what it holds goes away outside the lock
        lock.lock();
    }
}

}  // namespace marlevo
