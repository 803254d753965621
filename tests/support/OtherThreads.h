#pragma once

#include <chrono>
#include <ctime>

namespace marlevo {

/// Repeats `work` until other threads of this process have a part in it, which may need several
/// calls on a busy machine. False if they have none for ten seconds.
template <typename Work>
bool usesOtherThreads(Work work) {
    const auto seconds = [](clockid_t clock) {
        timespec time{};
        ::clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (std::chrono::steady_clock::now() < end) {
        const double allBefore = seconds(CLOCK_PROCESS_CPUTIME_ID);
        const double ownBefore = seconds(CLOCK_THREAD_CPUTIME_ID);
        work();
        const double own = seconds(CLOCK_THREAD_CPUTIME_ID) - ownBefore;
        if (seconds(CLOCK_PROCESS_CPUTIME_ID) - allBefore > 1.25 * own) return true;
    }
    return false;
}

}  // namespace marlevo
