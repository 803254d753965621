#include "model/PointList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace marlevo;

namespace {

TEST(PointList, AppendsInPlaceWhenAloneAndLeavesCopiesAsTheyWere) {
    PointList points{{0, 0}};
    for (int i = 1; i < 100; ++i)
        points.append({1.0 * i, 0});
    const Point* const place = points.span().data();
    PointList copy = points;
    points.append({-5, 7});
    EXPECT_EQ(copy.size(), 100u);
    EXPECT_EQ(copy.span().data(), place);
    EXPECT_EQ(copy.bounds(), (Rect{{0, 0}, {99, 0}}));
    EXPECT_EQ(points.bounds(), (Rect{{-5, 0}, {104, 7}}));

    const Point* const own = points.span().data();
    points.append({1, 1});
    EXPECT_EQ(points.span().data(), own);
    EXPECT_FALSE(points == copy);
    EXPECT_EQ(copy, PointList(std::vector<Point>(copy.begin(), copy.end())));
}

TEST(PointList, BoundsHoldEveryPointOrAreNotANumber) {
    EXPECT_EQ(PointList().bounds(), Rect());
    EXPECT_EQ(PointList({{3, 4}}).bounds(), (Rect{{3, 4}, {0, 0}}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const PointList& points :
         {PointList{{nan, 1}, {2, 2}}, PointList{{2, 2}, {nan, 1}, {3, 3}}}) {
        EXPECT_TRUE(std::isnan(points.bounds().minX()));
        EXPECT_EQ(points.bounds().minY(), 1);
    }
}

}  // namespace
