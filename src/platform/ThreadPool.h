#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace marlevo {

/// Threads that sleep until there is work to share. parallelFor() uses one pool.
class ThreadPool {
public:
    using Work = std::function<void(std::size_t)>;

    /// Has fewer threads, or none, if the system cannot start more.
    explicit ThreadPool(std::size_t threads);
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    /// Runs work(0) … work(count − 1) as parallelFor() does, on the calling thread and those of the
    /// pool. Returns false, with nothing run, when the pool has no threads or shares other work.
    bool share(std::size_t count, const Work& work);

private:
    /// The work of one call of share(). Exists as long as that call.
    struct Round {
        const std::size_t count;
        const Work& work;
        std::atomic<std::size_t> next = 0;
        std::size_t working = 0;     ///< number of threads of the pool at work
        std::exception_ptr failure;  ///< the first that a piece threw
    };

    void run(const std::stop_token& stop);
    void takePieces(Round& round);

    std::mutex mutex_;
    std::condition_variable_any began_;
    std::condition_variable ended_;
    Round* round_ = nullptr;             ///< null while nothing is shared
    std::vector<std::jthread> threads_;  ///< declared last: joined before the rest is destroyed
};

}  // namespace marlevo
