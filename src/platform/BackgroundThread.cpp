#include "platform/BackgroundThread.h"

#include <sys/resource.h>
#include <utility>

namespace marlevo {

namespace {

void yieldToAllOthers() {
    // On Linux niceness is the thread's own. Should it fail, the work merely competes.
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
