#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace marlevo {

/// Sleeps on the user-interface thread without blocking it. The clock keeps running while the
/// machine is suspended: a sleep whose time ends during suspension completes at resume.
class SleepingClock {
public:
    /// A sleep in progress. Its destruction cancels it. The completion may destroy it.
    class Sleep {
    public:
        virtual ~Sleep() = default;
    };

    virtual ~SleepingClock() = default;

    /// Calls `completion` once, on the user-interface thread, after this call has returned.
    [[nodiscard]] virtual std::unique_ptr<Sleep> sleep(std::chrono::nanoseconds duration,
                                                       std::function<void()> completion) = 0;
};

}  // namespace marlevo
