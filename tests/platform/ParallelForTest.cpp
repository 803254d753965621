#include "platform/ParallelFor.h"

#include <gmock/gmock.h>

#include <atomic>
#include <new>
#include <thread>
#include <vector>

using namespace marlevo;

namespace {

using testing::Each;

std::vector<int> runsOfEach(std::size_t count) {
    std::vector<int> runs(count);
    parallelFor(count, [&](std::size_t i) { ++runs[i]; });
    return runs;
}

TEST(ParallelFor, RunsEachPieceOnceAndReturnsWhenAllAreDone) {
    for (int round = 0; round < 2000; ++round)
        ASSERT_THAT(runsOfEach(static_cast<std::size_t>(round) % 17), Each(1)) << round;
}

TEST(ParallelFor, WorksWithinItselfAndOnSeveralThreadsAtOnce) {
    std::atomic<int> sum = 0;
    const auto nested = [&] {
        for (int round = 0; round < 200; ++round)
            parallelFor(5, [&](std::size_t) { parallelFor(3, [&](std::size_t) { ++sum; }); });
    };
    {
        const std::jthread other(nested);
        nested();
    }
    EXPECT_EQ(sum, 2 * 200 * 5 * 3);
}

TEST(ParallelFor, PassesOnWhatAPieceThrowsAndWorksAgain) {
    for (std::size_t bad = 0; bad < 40; ++bad) {
        const auto work = [&](std::size_t i) {
            if (i % 40 == bad) throw std::bad_alloc();
        };
        EXPECT_THROW(parallelFor(200, work), std::bad_alloc) << bad;
        ASSERT_THAT(runsOfEach(20), Each(1)) << bad;
    }
}

}  // namespace
