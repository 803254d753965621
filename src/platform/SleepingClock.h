#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace marlevo {

/// Sleeps on the user-interface thread without blocking it, on a clock that keeps running while the
/// machine is suspended: a sleep that ended meanwhile completes at waking up.
class SleepingClock {
public:
    /// A sleep under way; destroying it cancels it. It may be destroyed by its own completion.
    class Sleep {
    public:
        virtual ~Sleep() = default;
    };

    virtual ~SleepingClock() = default;

    /// Calls `completion` once, on the user-interface thread, never before this call has returned.
    [[nodiscard]] virtual std::unique_ptr<Sleep> sleep(std::chrono::nanoseconds duration,
                                                       std::function<void()> completion) = 0;
};

}  // namespace marlevo
