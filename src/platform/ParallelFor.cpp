#include "platform/ParallelFor.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace marlevo {

namespace {

using Work = std::function<void(std::size_t)>;

/// Threads that sleep until there is a piece of work to share.
class Helpers {
public:
    Helpers() {
        const unsigned cores = std::thread::hardware_concurrency();
        try {
            for (unsigned i = 1; i < cores; ++i)
                threads_.emplace_back([this](const std::stop_token& stop) { run(stop); });
        } catch (const std::system_error&) {
            // No more threads to be had: those there are, and the caller, do it all.
        }
    }

    /// False when the helpers are at other work.
    bool share(std::size_t count, const Work& work) {
        if (threads_.empty() || isShared_.exchange(true)) return false;
        {
            const std::lock_guard lock(mutex_);
            work_ = &work;
            count_ = count;
            next_ = 0;
            ++round_;
        }
        began_.notify_all();
        takePieces(work, count);
        std::unique_lock lock(mutex_);
        work_ = nullptr;  // who comes late finds nothing
        ended_.wait(lock, [this] { return working_ == 0; });
        const std::exception_ptr failure = std::exchange(failure_, nullptr);
        isShared_ = false;
        if (failure) std::rethrow_exception(failure);
        return true;
    }

private:
    void run(const std::stop_token& stop) {
        std::size_t seen = 0;
        std::unique_lock lock(mutex_);
        while (began_.wait(lock, stop, [&] { return round_ != seen; })) {
            seen = round_;
            if (work_ == nullptr) continue;
            // Of its own: the caller may find nothing left to take while this takes its last.
            const Work& work = *work_;
            const std::size_t count = count_;
            ++working_;
            lock.unlock();
            takePieces(work, count);
            lock.lock();
            if (--working_ == 0) ended_.notify_one();
        }
    }

    void takePieces(const Work& work, std::size_t count) {
        try {
            for (std::size_t i = next_++; i < count; i = next_++)
                work(i);
        } catch (...) {
            next_ = count;  // no other piece is begun
            const std::lock_guard lock(mutex_);
            if (!failure_) failure_ = std::current_exception();
        }
    }

    std::atomic<bool> isShared_ = false;
    std::mutex mutex_;
    std::condition_variable_any began_;
    std::condition_variable ended_;
    const Work* work_ = nullptr;
    std::size_t count_ = 0;
    std::atomic<std::size_t> next_ = 0;
    std::exception_ptr failure_;  ///< the first that a piece of this round threw
    std::size_t round_ = 0;
    std::size_t working_ = 0;            ///< helpers
    std::vector<std::jthread> threads_;  ///< last: joined before the rest goes
};

}  // namespace

void parallelFor(std::size_t count, const Work& work) {
    if (count > 1) {
        static Helpers helpers;
        if (helpers.share(count, work)) return;
    }
    for (std::size_t i = 0; i < count; ++i)
        work(i);
}

}  // namespace marlevo
