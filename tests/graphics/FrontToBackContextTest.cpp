#include "graphics/FrontToBackContext.h"

#include "tests/graphics/Supersampling.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace marlevo {

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

TEST(FrontToBackContext, GivesTheBytesOfDrawingInOrderWhereverItBecomesFull) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-10, 110);
    std::uniform_real_distribution<double> width(1, 30);
    struct Shape {
        Path path;
        double width;
        Color color;
    };
    std::vector<Shape> shapes(60);
    for (Shape& shape : shapes)
        shape = {line({place(random), place(random)}, {place(random), place(random)}),
                 width(random),
                 {place(random) / 100, 0.5, place(random) / 100, place(random) > 40 ? 1.0 : 0.5}};

    Canvas inOrder(100, 90);
    BitmapContext context(inOrder.buffer(), DeviceFrame::yDown(1));
    for (const Shape& shape : shapes)
        context.strokePath(shape.path, shape.color, shape.width);
    for (const std::size_t blocks : {0U, 1U, 200U, 2000U, 1000000U}) {
        Canvas canvas(100, 90);
        BitmapContext target(canvas.buffer(), DeviceFrame::yDown(1));
        FrontToBackContext fromTop(target, {.blocks = blocks, .elements = 1000});
        std::size_t below = shapes.size();
        while (below > 0 && !fromTop.isFull()) {
            const Shape& shape = shapes[--below];
            fromTop.strokePath(shape.path, shape.color, shape.width);
        }
        for (std::size_t i = 0; i < below; ++i)
            target.strokePath(shapes[i].path, shapes[i].color, shapes[i].width);
        fromTop.flush();
        EXPECT_EQ(canvas.bytes(), inOrder.bytes()) << blocks;
    }
}

}  // namespace marlevo
