#pragma once

#include <hwy/highway.h>
#include <hwy/targets.h>

#include <cstdint>

namespace marlevo {

/// Runs `check` once with each instruction set that this machine has.
template <class Check>
void withEveryInstructionSet(Check check) {
    for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
        check(hwy::TargetName(target));
    }
    hwy::SetSupportedTargetsForTest(0);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
}

}  // namespace marlevo
