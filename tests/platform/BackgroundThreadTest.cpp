#include "platform/BackgroundThread.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace marlevo;

namespace {

TEST(BackgroundThread, EndsWithTheWorkThatHasBegunAndDropsTheRest) {
    constexpr int posted = 1000;
    int ended = 0;
    {
        BackgroundThread queue;
        for (int i = 0; i < posted; ++i)
            queue.post([&ended] {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                ++ended;
            });
    }
    // Not a race: the queue's thread has been joined.
    EXPECT_LT(ended, posted);
}

}  // namespace
