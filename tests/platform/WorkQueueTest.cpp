#include "platform/WorkQueue.h"

#include <gtest/gtest.h>

#include <future>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

using namespace marlevo;

namespace {

TEST(WorkQueueTest, ADetachedQueueEndsAtOnceAndItsWorkIsDoneInOrder) {
    std::promise<void> release;
    std::promise<std::string> done;
    const auto order = std::make_shared<std::string>();
    std::optional<WorkQueue> queue(std::in_place, WorkQueue::AtEnd::detach);
    queue->post([order, released = release.get_future().share()] {
        released.wait();
        *order += 'a';
    });
    queue->post([order, &done] { done.set_value(*order + 'b'); });
    queue.reset();
    EXPECT_EQ(*order, "");
    release.set_value();
    EXPECT_EQ(done.get_future().get(), "ab");
}

TEST(WorkQueueTest, WaitsForTheWorkPostedBefore) {
    using namespace std::chrono_literals;
    WorkQueue queue;
    std::promise<void> release;
    queue.post([released = release.get_future().share()] { released.wait(); });
    EXPECT_FALSE(queue.waitFor(1ms));
    release.set_value();
    EXPECT_TRUE(queue.waitFor(1min));
}

TEST(WorkQueueTest, WorksInPostWhenTheSystemHasNoThread) {
#ifdef MARLEVO_SANITIZED
    GTEST_SKIP() << "a sanitizer needs more memory than the limit leaves";
#endif
    const auto workWithoutThreads = [] {
        const rlimit noMemory{};
        setrlimit(RLIMIT_AS, &noMemory);
        bool isDone = false;
        WorkQueue queue;
        queue.post([&] { isDone = true; });
        _exit(isDone ? 0 : 1);
    };
    // A process of its own, which has no stack of an ended thread to use again.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(workWithoutThreads(), testing::ExitedWithCode(0), "");
}

}  // namespace
