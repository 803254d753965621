#include "model/Stroke.h"

#include "tests/support/Drawing.h"

#include <gtest/gtest.h>

using namespace marlevo;

namespace {

using Type = Stroke::ShapeType;

TEST(Stroke, FreehandCurvesRunThroughMidpointsFromFirstPointToLast) {
    Path expected;
    expected.move({0, 0});
    expected.addQuadCurve({5, 0}, {0, 0});
    expected.addQuadCurve({10, 5}, {10, 0});
    expected.addLine({10, 10});
    EXPECT_EQ(makeStroke({{0, 0}, {10, 0}, {10, 10}}).path(), expected);

    Path straight;
    straight.move({0, 0});
    straight.addLine({10, 0});
    EXPECT_EQ(makeStroke({{0, 0}, {10, 0}}).path(), straight);

    EXPECT_TRUE(makeStroke({{0, 0}}).path().isEmpty());
    EXPECT_TRUE(makeStroke({}).path().isEmpty());
}

TEST(Stroke, LinesRunFromTheFirstPointToTheLast) {
    Path expected;
    expected.move({1, 2});
    expected.addLine({5, 6});
    EXPECT_EQ(makeStroke({{1, 2}, {90, 90}, {5, 6}}, 3, Type::line).path(), expected);
}

TEST(Stroke, ShapesSpanTheirFirstTwoPointsWhicheverWayTheyWereDragged) {
    const Rect expected{{4, 8}, {6, 12}};
    EXPECT_EQ(makeStroke({{10, 20}, {4, 8}}, 3, Type::rect).boundingCGRect(), expected);
    EXPECT_EQ(makeStroke({{4, 8}, {10, 20}}, 3, Type::rect).boundingCGRect(), expected);
    EXPECT_EQ(makeStroke({{4, 20}, {10, 8}, {99, 99}}, 3, Type::rect).boundingCGRect(), expected);

    Path ellipse;
    ellipse.addEllipse(expected);
    EXPECT_EQ(makeStroke({{10, 20}, {4, 8}}, 3, Type::ellipse).path(), ellipse);

    Path dot;
    dot.addRect({{7, 7}, {0, 0}});
    EXPECT_EQ(makeStroke({{7, 7}}, 3, Type::rect).path(), dot);
    EXPECT_TRUE(makeStroke({}, 3, Type::rect).path().isEmpty());
}

}  // namespace
