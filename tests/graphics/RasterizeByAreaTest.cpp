#include "graphics/Rasterizer.h"
#include "tests/graphics/Supersampling.h"
#include "tests/support/InstructionSets.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <random>

using namespace marlevo;

namespace {

const PackedColor opaque = packColor(black, 1, PixelOrder::argb);

Canvas filled(const FlattenedPath& outline, int width, int height) {
    Canvas canvas(width, height);
    fillOutline(outline, BlendSink{canvas.buffer(), opaque});
    return canvas;
}

double coveredArea(Canvas& canvas, const IntRect& area) {
    double sum = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            sum += canvas.alpha(x, y) / 255.0;
    return sum;
}

FlattenedPath polygon(const std::vector<Point>& points) { return polyline(points, true); }

FlattenedPath circle(Point center, double radius, int corners) {
    std::vector<Point> points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / corners;
        points.push_back(
            {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
    }
    return polygon(points);
}

FlattenedPath scribble(std::mt19937& random, int corners, double extent, double step) {
    std::uniform_real_distribution<double> start(0, extent);
    std::normal_distribution<double> move(0, step);
    std::vector<Point> points{{start(random), start(random)}};
    while (int(points.size()) < corners)
        points.push_back({points.back().x + move(random), points.back().y + move(random)});
    return polygon(points);
}

TEST(RasterizeByArea, CoversEachPixelByItsExactArea) {
    Canvas rect = filled(polygon({{1.25, 2.5}, {3.5, 2.5}, {3.5, 4}, {1.25, 4}}), 6, 6);
    EXPECT_EQ(rect.alpha(1, 2), 96);  // 0.75 × 0.5
    EXPECT_EQ(rect.alpha(2, 2), 128);
    EXPECT_EQ(rect.alpha(3, 3), 128);
    EXPECT_EQ(rect.alpha(2, 3), 255);
    EXPECT_EQ(rect.alpha(0, 3), 0);
    EXPECT_EQ(rect.alpha(4, 3), 0);
    EXPECT_EQ(rect.alpha(2, 4), 0);

    // A gentle slope: its share of each pixel of the row grows evenly.
    Canvas wedge = filled(polygon({{0, 1}, {10, 0}, {10, 1}}), 10, 1);
    for (int x = 0; x < 10; ++x)
        EXPECT_NEAR(wedge.alpha(x, 0), 255 * (x + 0.5) / 10, 1);

    for (const double radius : {0.3, 2.7, 40.2}) {
        Canvas disc = filled(circle({50.3, 49.6}, radius, 400), 100, 100);
        const double area = std::numbers::pi * radius * radius;
        EXPECT_NEAR(coveredArea(disc, {0, 0, 100, 100}), area, 0.01 * area + 0.01);
    }
}

TEST(RasterizeByArea, ClosesOpenContoursAndIgnoresContoursWithoutArea) {
    FlattenedPath path;
    addPolygon(path, {{2, 2}, {8, 2}, {8, 8}}, false);
    addPolygon(path, {{12, 3}, {18, 9}}, false);
    addPolygon(path, {{5, 15}}, false);
    Canvas canvas = filled(path, 20, 20);
    EXPECT_EQ(canvas.alpha(6, 3), 255);
    EXPECT_EQ(canvas.alpha(3, 6), 0);
    EXPECT_NEAR(coveredArea(canvas, {0, 0, 20, 20}), 18, 0.1);
}

TEST(RasterizeByArea, AgreesWithSupersampledTruth) {
    std::mt19937 random(7);
    for (int round = 0; round < 6; ++round) {
        const FlattenedPath outline =
            round < 3 ? scribble(random, 12, 60, 15) : scribble(random, 100, 60, 6);
        Canvas canvas = filled(outline, 64, 64);
        double difference = 0;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const double truth =
                    supersampled(x, y, 8, [&](Point p) { return windingNumber(outline, p) != 0; });
                difference += std::abs(canvas.alpha(x, y) - 255 * truth);
            }
        }
        EXPECT_LT(difference / (64 * 64), 1.2) << "outline " << round;
    }
}

TEST(RasterizeByArea, GivesTheSameBytesWithEveryInstructionSet) {
    std::mt19937 random(13);
    FlattenedPath outline = scribble(random, 50, 150, 40);
    addPolygon(outline, {{-9, 20.3}, {300, 20.3}, {300, 120.7}, {-9, 120.7}});
    std::vector<std::uint8_t> expected;
    withEveryInstructionSet([&](const char* name) {
        Canvas canvas(203, 150);
        for (int i = 0; i < 2; ++i)
            fillOutline(outline, BlendSink{canvas.buffer(),
                                           packColor({0.2, 0.9, 0.4, 1}, 0.6, PixelOrder::argb)});
        if (expected.empty()) expected = canvas.bytes();
        EXPECT_EQ(canvas.bytes(), expected) << name;
    });
}

TEST(RasterizeByArea, EndsBandsAtTheSamePixelsOnWidePictures) {
    // A band has few rows of a picture this wide, so that edges cross several bands.
    const FlattenedPath outline = polygon({{10, 3}, {29000, 40}, {15000, 77}});
    Canvas canvas = filled(outline, 30000, 80);
    for (int y = 0; y < 80; y += 7) {
        for (int x = 500; x < 30000; x += 1370) {
            const double truth =
                supersampled(x, y, 16, [&](Point p) { return windingNumber(outline, p) != 0; });
            ASSERT_NEAR(canvas.alpha(x, y), 255 * truth, 18) << x << ", " << y;
        }
    }
}

TEST(RasterizeByArea, AcceptsCoordinatesOfAnySize) {
    const double inf = std::numeric_limits<double>::infinity();
    for (const double far : {1e5, 4194304.0, 1e7, 1e12, 1e300, 1.7e308}) {
        // The diagonal passes through the middle of the picture.
        Canvas canvas = filled(polygon({{-far, -far}, {far, far}, {-far, far}}), 40, 40);
        EXPECT_EQ(canvas.alpha(5, 30), 255) << far;
        EXPECT_EQ(canvas.alpha(30, 5), 0) << far;
        EXPECT_NEAR(canvas.alpha(20, 20), 128, 8) << far;

        Canvas all = filled(polygon({{-far, -far}, {far, -far}, {far, far}, {-far, far}}), 40, 40);
        EXPECT_NEAR(coveredArea(all, {0, 0, 40, 40}), 1600, 0) << far;
    }
    FlattenedPath path = polygon({{0, 0}, {inf, 3}, {5, 5}});
    addPolygon(path, {{0, 0}, {std::nan(""), 3}, {5, 5}});
    addPolygon(path, {{10, 10}, {20, 10}, {20, 20}, {10, 20}});
    Canvas canvas = filled(path, 40, 40);
    EXPECT_EQ(coveredArea(canvas, {0, 0, 40, 40}), 100);
}

TEST(RasterizeByArea, EndsAtItsLimitOnEachSide) {
    constexpr int limit = 1 << 21;
    const auto coverage = [](const FlattenedPath& outline, int x, int y) {
        Canvas pixel({x, y, x + 1, y + 1});
        fillOutline(outline, {pixel.buffer(), opaque});
        return pixel.alpha(x, y);
    };
    for (const double beyond : {0.0, 7.0, 1e7, 1e300}) {
        for (int side = 0; side < 4; ++side) {
            const auto end = [&](int which) { return limit + (side == which ? beyond : 0); };
            const FlattenedPath all = polygon(
                {{-end(0), -end(1)}, {end(2), -end(1)}, {end(2), end(3)}, {-end(0), end(3)}});
            for (const int edge : {-limit, limit}) {
                const int inside = edge < 0 ? edge : edge - 1;
                const int outside = edge < 0 ? edge - 1 : edge;
                EXPECT_EQ(coverage(all, inside, 7), 255) << edge << ", " << beyond;
                EXPECT_EQ(coverage(all, outside, 7), 0) << edge << ", " << beyond;
                EXPECT_EQ(coverage(all, 7, inside), 255) << edge << ", " << beyond;
                EXPECT_EQ(coverage(all, 7, outside), 0) << edge << ", " << beyond;
            }
        }
    }
}

}  // namespace
