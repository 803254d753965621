#include "platform/ThreadPool.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>

using namespace marlevo;

namespace {

TEST(ThreadPool, RunsPiecesAtTheSameTime) {
    ThreadPool pool(1);
    std::promise<void> begun[2];
    const auto isBegun = [&](std::size_t i) {
        return begun[i].get_future().wait_for(std::chrono::seconds(20)) ==
               std::future_status::ready;
    };
    bool metOther[2] = {};
    EXPECT_TRUE(pool.share(2, [&](std::size_t i) {
        begun[i].set_value();
        metOther[i] = isBegun(1 - i);
    }));
    EXPECT_TRUE(metOther[0] && metOther[1]);
}

/// Many threads for few pieces: most of them wake up after the end of the round, or when the next
/// one has begun with other work at the same address.
TEST(ThreadPool, TouchesNothingOfARoundThatHasEnded) {
    ThreadPool pool(16);
    for (std::size_t round = 0; round < 1000; ++round) {
        std::vector<std::atomic<int>> ended(2 + round % 3);
        const ThreadPool::Work work = [&ended](std::size_t i) {
            std::this_thread::yield();
            ++ended.at(i);
        };
        ASSERT_TRUE(pool.share(ended.size(), work)) << round;
        for (const auto& count : ended)
            ASSERT_EQ(count, 1) << round;
    }
}

}  // namespace
