#include "render/Grid.h"

#include <gtest/gtest.h>

using namespace marlevo;

namespace {

Path lines(std::initializer_list<Rect> rects) {
    Path path;
    for (const Rect& rect : rects)
        path.addRect(rect);
    return path;
}

TEST(Grid, HasALineAtEachMultipleAndOnAFarEdgeThatIsOne) {
    const double half = gridLineWidth / 2;
    const auto column = [&](double x, double height) {
        return Rect{{x - half, 0}, {gridLineWidth, height}};
    };
    const auto row = [&](double y, double width) {
        return Rect{{0, y - half}, {width, gridLineWidth}};
    };
    EXPECT_EQ(gridPath({100, 50}, {{0, 0}, {100, 50}}),
              lines({column(0, 50), column(50, 50), column(100, 50), row(0, 100), row(50, 100)}));
    EXPECT_EQ(gridPath({99.9, 50.1}, {{0, 0}, {200, 200}}),
              lines({column(0, 50.1), column(50, 50.1), row(0, 99.9), row(50, 99.9)}));
}

TEST(Grid, LeavesOutOnlyLinesThatCannotTouchTheVisiblePart) {
    const CanvasSize canvas{1e9, 1e9};
    EXPECT_TRUE(gridPath(canvas, {{501, 501}, {48, 48}}).isEmpty());
    EXPECT_FALSE(gridPath(canvas, {{500.25, 501}, {48, 48}}).isEmpty());
    EXPECT_FALSE(gridPath(canvas, {{501, 501}, {48, 48.75}}).isEmpty());
}

}  // namespace
