#include "graphics/FrontToBackContext.h"

#include "tests/graphics/Supersampling.h"

#include <gtest/gtest.h>

using namespace marlevo;

TEST(FrontToBackContext, IsFullAtEitherOfItsLimits) {
    Canvas canvas(200, 20);
    BitmapContext target(canvas.buffer(), DeviceFrame::yDown(1));
    FrontToBackContext ofBlocks(target, {.blocks = 20, .elements = 1000});
    ofBlocks.strokePath(line({4, 5}, {60, 5}), black, 1);
    EXPECT_FALSE(ofBlocks.isFull());
    ofBlocks.strokePath(line({4, 5}, {190, 5}), black, 3);
    EXPECT_TRUE(ofBlocks.isFull());

    // Fills and strokes by area are kept as paths.
    FrontToBackContext ofElements(target, {.blocks = 1000, .elements = 4});
    ofElements.strokePath(line({4, 5}, {190, 5}), black, 50);
    EXPECT_FALSE(ofElements.isFull());
    ofElements.fillPath(line({4, 5}, {190, 5}), black);
    EXPECT_TRUE(ofElements.isFull());
}
