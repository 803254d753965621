#pragma once

#include "platform/SleepingClock.h"

namespace marlevo {

/// Sleeps in Qt's event loop on the system's boot-time clock, which counts suspension. If the
/// system has no more such timers, a plain timer is used, which does not count it.
class QtSleepingClock final : public SleepingClock {
public:
    std::unique_ptr<Sleep> sleep(std::chrono::nanoseconds duration,
                                 std::function<void()> completion) override;
};

}  // namespace marlevo
