#include "graphics/OcclusionMask.h"

#include <gtest/gtest.h>

namespace marlevo {

TEST(OcclusionMask, HoldsWhichPixelsAreHidden) {
    const IntRect area{-5, 3, 20, 10};
    OcclusionMask mask(area);
    EXPECT_FALSE(mask.isOccluded({-5, 3, -4, 4}));
    EXPECT_TRUE(mask.isOccluded({-9, 3, -5, 10}));  // outside
    EXPECT_EQ(mask.visibleShare(), 1);
    for (int y = 2; y < 10; y += 2) {
        for (int x = -8; x < 20; x += 8)
            mask.occlude(x, y, x == 8 && y == 4 ? 0xFFFE : 0xFFFF);
    }
    EXPECT_FALSE(mask.isOccluded());
    EXPECT_EQ(mask.visibleShare(), 1.0 / (25 * 7));
    EXPECT_TRUE(mask.isOccluded({-5, 3, 8, 10}));
    EXPECT_FALSE(mask.isOccluded({-5, 3, 9, 10}));
    EXPECT_EQ(mask.visiblePixelsOf(8, 4), 1U);
    EXPECT_EQ(mask.visiblePixelsOf(0, 4), 0U);
    EXPECT_EQ(mask.visiblePixelsOf(800, 400), 0U);
    EXPECT_TRUE(mask.anyVisible(8, 2, 4));
    EXPECT_FALSE(mask.anyVisible(8, 6, 2));
    EXPECT_FALSE(mask.anyVisible(0, 2, 4));
    mask.occlude(8, 4, 1);
    EXPECT_TRUE(mask.isOccluded());
    mask.occlude(800, 400, 0xFFFF);  // ignored
}

}  // namespace marlevo
