#include "platform/ThreadPool.h"

#include <system_error>

namespace marlevo {

ThreadPool::ThreadPool(std::size_t threads) {
    try {
        for (std::size_t i = 0; i < threads; ++i)
            threads_.emplace_back([this](const std::stop_token& stop) { run(stop); });
    } catch (const std::system_error&) {
        // The threads started so far and the caller do all the work.
    }
}

bool ThreadPool::share(std::size_t count, const Work& work) {
    if (threads_.empty()) return false;
    Round round{.count = count, .work = work, .failure = nullptr};
    {
        const std::lock_guard lock(mutex_);
        if (round_ != nullptr) return false;
        round_ = &round;
    }
    began_.notify_all();
    takePieces(round);
    {
        std::unique_lock lock(mutex_);
        ended_.wait(lock, [&] { return round.working == 0; });
        round_ = nullptr;  // threads that wake up late must not touch the round
    }
    if (round.failure) std::rethrow_exception(round.failure);
    return true;
}

void ThreadPool::run(const std::stop_token& stop) {
    const auto hasPieces = [this] { return round_ != nullptr && round_->next < round_->count; };
    std::unique_lock lock(mutex_);
    while (began_.wait(lock, stop, hasPieces)) {
        Round& round = *round_;
        ++round.working;
        lock.unlock();
        takePieces(round);
        lock.lock();
        if (--round.working == 0) ended_.notify_one();
    }
}

void ThreadPool::takePieces(Round& round) {
    try {
        for (std::size_t i = round.next++; i < round.count; i = round.next++)
            round.work(i);
    } catch (...) {
        round.next = round.count;  // no other piece is begun
        const std::lock_guard lock(mutex_);
        if (!round.failure) round.failure = std::current_exception();
    }
}

}  // namespace marlevo
