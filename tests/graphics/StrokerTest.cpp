#include "graphics/Stroker.h"

#include "graphics/Flatten.h"
#include "graphics/Rasterizer.h"
#include "tests/graphics/Supersampling.h"

#include <gtest/gtest.h>

#include <numbers>
#include <random>

using namespace marlevo;

namespace {

/// Compares the outline of a stroke, and the filled outline, with the set of points near its line.
void expectTruth(const FlattenedPath& line, double width, int size, const char* what) {
    FlattenedPath outline;
    strokeOutline(line, width, 1, 1, outline);
    Canvas canvas(size, size);
    fillOutline(outline, BlendSink{canvas.buffer(), packColor(black, 1, PixelOrder::argb)});

    double sum = 0;
    int sign = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const Point corner{x + 0.03, y + 0.07};
            const double beyond = distanceToLines(corner, line) - width / 2;
            if (std::abs(beyond) > 1.5 * flatteningTolerance) {
                const int winding = windingNumber(outline, corner);
                ASSERT_EQ(winding != 0, beyond < 0)
                    << what << ", width " << width << ", at " << x << ", " << y;
                // Windings of both signs would cancel where two strokes of an outline cross.
                if (sign == 0) sign = winding;
                ASSERT_GE(winding * sign, 0) << what << ", width " << width;
            }
            const double truth = coverageByRoundPen(x, y, line, width / 2);
            const double difference = std::abs(canvas.alpha(x, y) / 255.0 - truth);
            sum += difference;
            if (std::abs(beyond) > 1.5) {
                ASSERT_EQ(difference, 0)
                    << what << ", width " << width << ", pixel " << x << ", " << y;
            }
        }
    }
    EXPECT_LT(sum / (size * size), 0.006) << what << ", width " << width;
}

/// A curve that turns on the spot, flattened finely: an arc of `radius`.
std::vector<Point> arc(Point center, double radius, double angle, int count) {
    std::vector<Point> points;
    for (int i = 0; i <= count; ++i)
        points.push_back({center.x + radius * std::cos(angle * i / count),
                          center.y + radius * std::sin(angle * i / count)});
    return points;
}

TEST(Stroker, PaintsWhatTheRoundPenReaches) {
    for (const double width : {1.0, 3.0, 9.5, 24.0, 60.0}) {
        expectTruth(polyline({{30, 40}, {60, 45}}), width, 100, "line");
        expectTruth(polyline({{30, 30}, {70, 35}, {40, 70}}), width, 100, "sharp corner");
        expectTruth(polyline({{20, 50}, {80, 50}, {30, 50.5}, {70, 49}}), width, 100, "cusps");
        expectTruth(polyline({{20, 50}, {80, 50}, {30, 50}}), width, 100, "way back");
        expectTruth(polyline({{30, 30}, {70, 30}, {70, 60}, {30, 60}}, true), width, 100, "rect");
        expectTruth(polyline({{40, 40}, {60, 55}}, true), width, 100, "closed line");
        expectTruth(polyline({{50, 50}}), width, 100, "point");
        expectTruth(polyline({{50, 50}, {50, 50}, {50, 50.001}}), width, 100, "line of no length");
        expectTruth(polyline({{50, 50}, {50, 50}}, true), width, 100, "closed point");
    }
}

TEST(Stroker, LeavesNoHolesWhereTheLineTurnsTighterThanThePen) {
    for (const double radius : {0.5, 3.0, 8.0, 11.0, 13.0, 25.0}) {
        for (const double angle : {0.6, 1.0, 1.9, 2.5}) {
            const auto points = arc({50, 50}, radius, angle * std::numbers::pi, 60);
            expectTruth(polyline(points), 24, 100, "arc");
            expectTruth(polyline({points.rbegin(), points.rend()}), 24, 100, "arc back");
            // A short hook at the end of a straight line.
            std::vector<Point> hook{{50 + radius, 20}};
            hook.insert(hook.end(), points.begin(), points.end());
            expectTruth(polyline(hook), 24, 100, "hook");
        }
        auto circle = arc({50, 50}, radius, 2 * std::numbers::pi, 48);
        circle.pop_back();
        expectTruth(polyline(circle, true), 24, 100, "circle");
    }
}

TEST(Stroker, FollowsAnyScribble) {
    std::mt19937 random(3);
    for (int round = 0; round < 30; ++round) {
        std::normal_distribution<double> move(0, round % 3 == 0 ? 1 : round % 3 == 1 ? 5 : 20);
        std::vector<Point> points{{48, 48}};
        for (int i = 0; i < 40; ++i)
            points.push_back({std::clamp(points.back().x + move(random), 5.0, 90.0),
                              std::clamp(points.back().y + move(random), 5.0, 90.0)});
        expectTruth(polyline(points, round % 2), 2 + round, 96, "scribble");
    }
}

TEST(Stroker, DrawsWithAnEllipseWhereTheScalesDiffer) {
    // The same line in a frame stretched three times in x and mirrored in y.
    const std::vector<Point> points{{10, 20}, {22, 30}, {14, 60}, {14, 25}};
    std::vector<Point> stretched;
    for (const Point p : points)
        stretched.push_back({3 * p.x, 80 - p.y});
    const FlattenedPath line = polyline(points);
    FlattenedPath outline;
    strokeOutline(polyline(stretched), 8, 3, -1, outline);
    for (double y = 0.3; y < 80; y += 0.7) {
        for (double x = 0.1; x < 40; x += 0.3) {
            const double beyond = distanceToLines({x, y}, line) - 4;
            if (std::abs(beyond) > 1.5 * flatteningTolerance) {
                ASSERT_EQ(windingNumber(outline, {3 * x, 80 - y}) != 0, beyond < 0)
                    << x << ", " << y;
            }
        }
    }
}

TEST(Stroker, AcceptsWidthsOfAnySize) {
    const FlattenedPath line = polyline({{10, 10}, {20, 12}, {11, 18}});
    FlattenedPath outline;
    for (const double width : {0.0, -3.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
        strokeOutline(line, width, 1, 1, outline);
        EXPECT_TRUE(outline.isEmpty()) << width;
    }
    for (const double width : {1e-300, 1e-5, 1e6, 1e12, 1e300}) {
        strokeOutline(line, width, 1, 1, outline);
        EXPECT_LT(outline.points.size(), 10000u) << width;
        Canvas canvas(30, 30);
        fillOutline(outline, BlendSink{canvas.buffer(), packColor(black, 1, PixelOrder::argb)});
        EXPECT_EQ(canvas.alpha(15, 14), width > 1 ? 255 : 0) << width;
    }
}

}  // namespace
