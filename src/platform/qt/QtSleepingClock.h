#pragma once

#include "platform/SleepingClock.h"

namespace marlevo {

/// Sleeps in Qt's event loop on the system's boot-time clock, which counts suspend. Where the
/// system has no such timer left to give, a plain timer takes its place, which does not.
class QtSleepingClock final : public SleepingClock {
public:
    std::unique_ptr<Sleep> sleep(std::chrono::nanoseconds duration,
                                 std::function<void()> completion) override;
};

}  // namespace marlevo
