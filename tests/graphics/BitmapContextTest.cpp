#include "graphics/BitmapContext.h"

#include "graphics/Rasterizer.h"
#include "tests/graphics/Supersampling.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

namespace marlevo {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

Path ellipse(Rect rect) {
    Path path;
    path.addEllipse(rect);
    return path;
}

}  // namespace

TEST(BitmapContext, MultipliesAlphaAndRestoresItWithTheFrame) {
    Canvas canvas(40, 40);
    BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
    context.saveState();
    context.setAlpha(0.5);
    context.scale(2, 2);
    context.fillRect({{0, 0}, {5, 5}}, {1, 0, 0, 0.5});
    EXPECT_EQ(canvas.alpha(9, 9), 64);
    EXPECT_EQ(canvas.alpha(10, 9), 0);
    context.restoreState();
    context.restoreState();
    context.fillRect({{20, 20}, {5, 5}}, black);
    EXPECT_EQ(canvas.alpha(24, 24), 255);
    EXPECT_EQ(canvas.alpha(25, 24), 0);
}

TEST(BitmapContext, ScalesThePenInEachDirection) {
    Canvas canvas(80, 80);
    BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
    context.scale(1, 3);
    context.strokePath(line({10, 13}, {70, 13}), black, 4);
    context.strokePath(line({40, 2}, {40, 25}), black, 4);
    EXPECT_EQ(canvas.alpha(20, 34), 255);
    EXPECT_EQ(canvas.alpha(20, 43), 255);
    EXPECT_EQ(canvas.alpha(20, 31), 0);
    EXPECT_EQ(canvas.alpha(38, 60), 255);
    EXPECT_EQ(canvas.alpha(36, 60), 0);
}

TEST(BitmapContext, GivesTheSameBytesWhateverPartIsPainted) {
    std::mt19937 random(8);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    constexpr int size = 150;
    const auto point = [&] { return Point{between(-50, size + 50), between(-50, size + 50)}; };
    std::vector<std::uint8_t> noise(std::size_t{4} * 61 * 47);
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = i % 4 == 0 ? 255 : static_cast<std::uint8_t>(random());
    const RasterImage image(61, 47, std::move(noise));
    for (int round = 0; round < 60; ++round) {
        Path path;
        path.move(point());
        for (int i = 0; i < 5; ++i)
            path.addQuadCurve(point(), point());
        if (round % 8 == 0) path.addLine({1e6, -3e5});
        path.addEllipse({point(), {between(0, 100), between(0, 100)}});
        const double width = between(0.5, 40);
        const DeviceFrame frame{round % 3 == 0 ? 0.7 : 1.3, 1.3, between(-5, 5), between(-5, 5)};
        const Color color{0.3, 0.6, 0.9, 0.7};
        const Rect place{point(), {between(1, 300), between(1, 300)}};
        const auto draw = [&](PixelBuffer buffer) {
            BitmapContext context(buffer, frame);
            context.strokePath(path, color, width);
            context.fillPath(path, color);
            context.fillRect({{10.3, 20}, {50, 60.7}}, color);
            context.setAlpha(0.9);
            context.drawImage(image, place);
        };
        Canvas whole(size, size);
        draw(whole.buffer());
        Canvas parts(size, size);
        for (int top = 0, bottom = 0; top < size; top = bottom) {
            bottom = std::min(size, top + static_cast<int>(between(1, 80)));
            for (int left = 0, right = 0; left < size; left = right) {
                right = std::min(size, left + static_cast<int>(between(1, 80)));
                draw(parts.part({left, top, right, bottom}));
            }
        }
        ASSERT_EQ(parts.bytes(), whole.bytes()) << "round " << round;
    }
}

TEST(BitmapContext, DrawsDotsForShapesWithoutSize) {
    const Rect empty{{20, 20}, {0, 0}};
    Path rect;
    rect.addRect(empty);
    for (const Path& path : {rect, ellipse(empty), line({20, 20}, {20, 20})}) {
        for (const double width : {6.0, 24.0}) {
            Canvas canvas(40, 40);
            BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
            context.strokePath(path, black, width);
            const int radius = static_cast<int>(width / 2);
            EXPECT_EQ(canvas.alpha(20, 20), 255);
            EXPECT_EQ(canvas.alpha(20 + radius - 2, 20), 255);
            EXPECT_EQ(canvas.alpha(20 + radius + 1, 20), 0);
        }
    }
}

TEST(BitmapContext, DrawsWhatCanBeSeenOfShapesOfAnySize) {
    for (const double far : {1e5, 1e7, 1e300}) {
        for (const double width : {3.0, 30.0}) {
            Canvas canvas(60, 60);
            BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
            context.strokePath(line({-far, 30}, {far, 30}), black, width);
            EXPECT_EQ(canvas.alpha(0, 30), 255) << far;
            EXPECT_EQ(canvas.alpha(59, 30), 255) << far;
            EXPECT_EQ(canvas.alpha(30, 58), 0) << far;
        }
        Canvas canvas(60, 60);
        BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
        context.fillRect({{-far, 20.5}, {2 * far, 10}}, black);
        EXPECT_EQ(canvas.alpha(5, 25), 255);
        EXPECT_EQ(canvas.alpha(5, 32), 0);
    }
}

TEST(BitmapContext, DrawsStrokesThatLeaveTheRangeOnEachSideAndReturn) {
    constexpr Point middle{20, 20};
    for (const double far : {3e6, 4194305.0, 5e6, 1e12}) {
        for (const Point away : {Point{1, 0}, Point{-1, 0}, Point{0, 1}, Point{0, -1}}) {
            for (const double width : {6.0, 30.0}) {
                const Point start{middle.x + away.x * far, middle.y + away.y * far};
                Path path = line(start, middle);
                path.addLine({start.x * 2, start.y * 2});
                Canvas canvas(40, 40);
                BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
                context.strokePath(path, black, width);
                const auto alphaAt = [&](double along) {
                    return canvas.alpha(static_cast<int>(middle.x + along * away.x),
                                        static_cast<int>(middle.y + along * away.y));
                };
                EXPECT_EQ(alphaAt(19), 255) << far << ", " << width;
                EXPECT_EQ(alphaAt(1), 255) << far << ", " << width;
                EXPECT_EQ(alphaAt(-18), 0) << far << ", " << width;
            }
        }
    }
}

TEST(BitmapContext, DrawsStrokesThatTouchThePartByTheirFringeAlone) {
    constexpr IntRect part{20, 20, 40, 40};
    for (const double width : {0.3, 1.0, 7.0, 40.0}) {
        for (double offset = -2; offset < 1; offset += 0.0625) {
            const double before = part.left - width / 2 + offset;
            const double after = part.right + width / 2 - offset;
            for (const Path& path :
                 {line({before, 0}, {before, 60}), line({after, 0}, {after, 60}),
                  line({0, before}, {60, before}), line({0, after}, {60, after})}) {
                Canvas whole(60, 60);
                Canvas tile(60, 60);
                BitmapContext onWhole(whole.buffer(), DeviceFrame::yDown(1));
                BitmapContext onPart(tile.part(part), DeviceFrame::yDown(1));
                onWhole.strokePath(path, black, width);
                onPart.strokePath(path, black, width);
                for (int y = part.top; y < part.bottom; ++y)
                    for (int x = part.left; x < part.right; ++x)
                        ASSERT_EQ(tile.alpha(x, y), whole.alpha(x, y)) << width << ", " << offset;
            }
        }
    }
}

TEST(BitmapContext, LeavesOutWhatCannotBeDrawn) {
    Canvas canvas(30, 30);
    const std::vector<std::uint8_t> blank = canvas.bytes();
    for (const double bad : {nan, infinity, -infinity, 0.0}) {
        BitmapContext context(canvas.buffer(), DeviceFrame::yDown(1));
        context.saveState();
        context.scale(bad, 1);
        context.fillRect({{1, 1}, {20, 20}}, black);
        context.strokePath(line({2, 2}, {25, 25}), black, 3);
        context.strokePath(line({2, 2}, {25, 25}), black, 30);
        context.fillPath(ellipse({{2, 2}, {20, 20}}), black);
        context.restoreState();
        if (bad != 0) {
            context.fillPath(ellipse({{2, bad}, {20, 20}}), black);
            context.strokePath(line({bad, 2}, {bad, 25}), black, 3);
        }
        if (bad != infinity) context.strokePath(line({2, 2}, {25, 25}), black, bad);
        context.fillRect({{bad, 1}, {bad, 20}}, black);
    }
    EXPECT_EQ(canvas.bytes(), blank);
}

}  // namespace marlevo
