#include "platform/WorkQueue.h"

#include <utility>

namespace marlevo {

WorkQueue::WorkQueue(AtEnd atEnd) : atEnd_(atEnd), thread_([state = state_] { run(*state); }) {}

WorkQueue::~WorkQueue() {
    {
        const std::lock_guard lock(state_->mutex);
        state_->isClosing = true;
    }
    state_->changed.notify_one();
    if (atEnd_ == AtEnd::wait)
        thread_.join();
    else
        thread_.detach();
}

void WorkQueue::post(std::function<void()> work) {
    {
        const std::lock_guard lock(state_->mutex);
        state_->waiting.push(std::move(work));
    }
    state_->changed.notify_one();
}

void WorkQueue::run(State& state) {
    std::unique_lock lock(state.mutex);
    while (true) {
        state.changed.wait(lock, [&] { return state.isClosing || !state.waiting.empty(); });
        if (state.waiting.empty()) return;
        std::function<void()> work = std::move(state.waiting.front());
        state.waiting.pop();
        lock.unlock();
        work();
        work = nullptr;  // what it owns is destroyed outside the lock
        lock.lock();
    }
}

}  // namespace marlevo
