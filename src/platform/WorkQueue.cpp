#include "platform/WorkQueue.h"

#include <system_error>
#include <utility>

namespace marlevo {

WorkQueue::WorkQueue(AtEnd atEnd) : atEnd_(atEnd) {
    try {
        thread_ = std::thread([state = state_] { run(*state); });
    } catch (const std::system_error&) {
    }
}

WorkQueue::~WorkQueue() {
    if (!thread_.joinable()) return;
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
    if (!thread_.joinable()) return work();
    {
        const std::lock_guard lock(state_->mutex);
        state_->waiting.push(std::move(work));
    }
    state_->changed.notify_one();
}

void WorkQueue::wait() { afterAllWork().wait(); }

bool WorkQueue::waitFor(std::chrono::milliseconds limit) {
    return afterAllWork().wait_for(limit) == std::future_status::ready;
}

std::future<void> WorkQueue::afterAllWork() {
    // Shared, because a std::function must be copyable.
    const auto done = std::make_shared<std::promise<void>>();
    std::future<void> future = done->get_future();
    post([done] { done->set_value(); });
    return future;
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
