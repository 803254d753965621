#include "graphics/Flatten.h"

#include "tests/graphics/Supersampling.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

using namespace marlevo;

namespace {

FlattenedPath flattened(const Path& path, OpenContours ends = OpenContours::keep,
                        DeviceFrame frame = DeviceFrame::yDown(1)) {
    FlattenedPath out;
    flatten(path, frame, flatteningTolerance, out, ends);
    return out;
}

}  // namespace

TEST(Flatten, KeepsCurvesWithinTheTolerance) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> anywhere(-300, 300);
    for (int round = 0; round < 200; ++round) {
        const double scale = round % 2 == 0 ? 1 : 0.05;
        const auto point = [&] {
            return Point{anywhere(random) * scale, anywhere(random) * scale};
        };
        const Point a = point();
        const Point b = point();
        const Point c = point();
        Path path;
        path.move(a);
        path.addQuadCurve(c, b);
        const FlattenedPath lines = flattened(path);
        for (double t = 0; t <= 1; t += 0.01) {
            const double u = 1 - t;
            const Point exact{u * u * a.x + 2 * u * t * b.x + t * t * c.x,
                              u * u * a.y + 2 * u * t * b.y + t * t * c.y};
            ASSERT_LE(distanceToLines(exact, lines), flatteningTolerance);
        }
        EXPECT_EQ(lines.points.back(), c);
    }
}

TEST(Flatten, KeepsEllipsesWithinTheTolerance) {
    for (const double radius : {0.01, 0.3, 5.0, 200.0, 5000.0}) {
        Path path;
        path.addEllipse({{-radius, -radius}, {2 * radius, 2 * radius}});
        const FlattenedPath lines = flattened(path);
        ASSERT_EQ(lines.contours.size(), 1U);
        EXPECT_TRUE(lines.contours[0].closed);
        for (double angle = 0; angle < 6.3; angle += 0.0137) {
            const Point exact{radius * std::cos(angle), radius * std::sin(angle)};
            ASSERT_LE(distanceToLines(exact, lines), flatteningTolerance * 1.001) << radius;
        }
    }
}

TEST(Flatten, SeparatesContoursAndDropsLoneMoves) {
    Path path;
    path.move({1, 1});
    path.move({2, 2});
    path.addLine({3, 2});
    path.addRect({{10, 10}, {5, 4}});
    path.move({7, 7});
    path.addLine({7, 7});
    const FlattenedPath lines = flattened(path);
    ASSERT_EQ(lines.contours.size(), 3U);
    EXPECT_THAT(lines.pointsOf(lines.contours[0]), testing::ElementsAre(Point{2, 2}, Point{3, 2}));
    EXPECT_FALSE(lines.contours[0].closed);
    EXPECT_EQ(lines.contours[1].count, 4U);
    EXPECT_TRUE(lines.contours[1].closed);
    EXPECT_THAT(lines.pointsOf(lines.contours[2]), testing::ElementsAre(Point{7, 7}, Point{7, 7}));
}

TEST(Flatten, LinesFromFarAwayKeepTheirPlace) {
    const Point left{-1e7, 50 - 1e7 / 4};
    const Point right{3e7, 50 + 3e7 / 4};
    for (const FlattenedPath& lines : {flattened(line(left, right)), flattened(line(right, left))})
        for (double x = -1000; x <= 1000; x += 100)
            EXPECT_LT(distanceToLines({x, 50 + x / 4}, lines), 1e-3);

    EXPECT_LT(distanceToLines({640, 50}, flattened(line({-1e300, 50}, {1e300, 50}))), 1e-9);
}

TEST(Flatten, GivesFinitePointsInRangeForAnyInput) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const double values[] = {0, 1, -1, 1e7, -1e7, 1e300, -1e300, 1e-310, nan, infinity, -infinity};
    std::mt19937 random(3);
    const auto value = [&] { return values[random() % std::size(values)]; };
    const auto point = [&] { return Point{value(), value()}; };
    for (int round = 0; round < 3000; ++round) {
        Path path;
        for (int i = 0; i < 6; ++i) {
            switch (random() % 5) {
            case 0:
                path.move(point());
                break;
            case 1:
                path.addLine(point());
                break;
            case 2:
                path.addQuadCurve(point(), point());
                break;
            case 3:
                path.addRect({point(), {value(), value()}});
                break;
            default:
                path.addEllipse({point(), {value(), value()}});
                break;
            }
        }
        const DeviceFrame frame{value(), value(), value(), value()};
        const auto ends = round % 2 == 0 ? OpenContours::keep : OpenContours::close;
        for (const FlattenedPath& lines : {flattened(path, ends), flattened(path, ends, frame)}) {
            for (const Point& p : lines.points) {
                ASSERT_LE(std::abs(p.x), FlattenedPath::maxCoordinate);
                ASSERT_LE(std::abs(p.y), FlattenedPath::maxCoordinate);
            }
        }
    }
}
