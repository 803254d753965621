#pragma once

#include <cstdint>

namespace marlevo {

/// While it exists, one allocation of this thread fails: the first after `successes` others.
class FailingAllocation {
public:
    explicit FailingAllocation(std::int64_t successes);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

}  // namespace marlevo
