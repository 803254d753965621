#include "io/Result.h"

#include <gtest/gtest.h>

#include <vector>

namespace marlevo {
namespace {

TEST(Result, MovesItsValueOutWithoutACopy) {
    Result<std::vector<int>> result(std::vector{1, 2, 3});
    const int* const place = result->data();
    const std::vector<int> value = *std::move(result);
    EXPECT_EQ(value.data(), place);
}

}  // namespace
}  // namespace marlevo
