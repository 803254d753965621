#include "platform/BackgroundThread.h"

#include <sys/resource.h>
#include <utility>

namespace marlevo {

namespace {

void yieldToAllOthers() {
    // On Linux niceness belongs to a thread. An error does no harm: the priority stays normal.
    constexpr int callingThread = 0;
    constexpr int lowestPriority = 19;
    setpriority(PRIO_PROCESS, callingThread, lowestPriority);
}

}  // namespace

BackgroundThread::BackgroundThread() { queue_.post(yieldToAllOthers); }

void BackgroundThread::post(std::function<void()> work) {
    queue_.post([this, work = std::move(work)] {
        if (!isEnding_) work();
    });
}

}  // namespace marlevo
