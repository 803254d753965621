#include "platform/ParallelFor.h"

#include "platform/ThreadPool.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace marlevo {

namespace {

thread_local bool usesOneCore = false;

}  // namespace

OneCore::OneCore() : before_(std::exchange(usesOneCore, true)) {}

OneCore::~OneCore() { usesOneCore = before_; }

void parallelFor(std::size_t count, const std::function<void(std::size_t)>& work) {
    if (count > 1 && !usesOneCore) {
        static ThreadPool helpers(std::max(std::thread::hardware_concurrency(), 1U) - 1);
        if (helpers.share(count, work)) return;
    }
    for (std::size_t i = 0; i < count; ++i)
        work(i);
}

}  // namespace marlevo
