#include "platform/FileAddress.h"

#include <gtest/gtest.h>

using namespace marlevo;

namespace {

TEST(FileAddressTest, AddressesOfThisMachineArePathsByteForByte) {
    EXPECT_EQ(pathOfFileAddress("file:///tmp/a%20b.marlevo"), "/tmp/a b.marlevo");
    EXPECT_EQ(pathOfFileAddress("file:///tmp/b%E4%23%3f%25.marlevo"), "/tmp/b\xe4#?%.marlevo");
    EXPECT_EQ(pathOfFileAddress("FILE://LocalHost/tmp/ü"), "/tmp/ü");
    EXPECT_EQ(pathOfFileAddress("file:/tmp/100%"), "/tmp/100%");
    EXPECT_EQ(pathOfFileAddress("file:/100%2/%g0%-1"), "/100%2/%g0%-1");
    EXPECT_EQ(pathOfFileAddress("file:///a?b#c"), "/a");
}

TEST(FileAddressTest, OtherTextsAreNoPaths) {
    for (const std::string_view text : {"", "file", "file:", "file:a", "file://", "/tmp/file:///a",
                                        "file://elsewhere/a", "http:///a", "file:///a%00b"})
        EXPECT_FALSE(pathOfFileAddress(text)) << text;
}

}  // namespace
