#include "platform/WorkQueue.h"

#include <gtest/gtest.h>

#include <future>
#include <optional>
#include <string>

namespace marlevo {
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

}  // namespace
}  // namespace marlevo
