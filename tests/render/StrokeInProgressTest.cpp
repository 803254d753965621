#include "render/StrokeInProgress.h"

#include "graphics/BitmapContext.h"
#include "render/StrokePainting.h"
#include "tests/support/Canvas.h"
#include "tests/support/Drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

using namespace marlevo;

namespace {

constexpr IntRect sight{-30, -20, 300, 240};

Canvas cleanCanvas() { return Canvas(sight, PixelOrder::bgra, 0x5A); }

std::vector<std::uint8_t> drawnWhole(const Stroke& stroke, double scale) {
    Canvas canvas = cleanCanvas();
    BitmapContext context(canvas.buffer(), DeviceFrame::yDown(scale));
    drawStrokeOnScreen(context, stroke);
    return canvas.bytes();
}

std::vector<std::uint8_t> shownBy(const StrokeInProgress& stroke) {
    Canvas canvas = cleanCanvas();
    stroke.paint(canvas.buffer());
    return canvas.bytes();
}

/// Positions of a pointer that turns, rests, jitters, reverses and jumps.
class Pointer {
public:
    explicit Pointer(unsigned seed) : random_(seed) {}

    Point next() {
        switch (below(12)) {
        case 0:
            break;  // stays
        case 1:
            angle_ += 3.1;
            break;
        case 2:
            at_ = {at_.x + below(100) / 1e4, at_.y + below(100) / 1e4};
            return at_;
        case 3:
            at_ = {below(4000) / 10.0 - 50, below(3000) / 10.0 - 40};
            return at_;
        default:
            angle_ += below(100) / 100.0 - 0.5;
            const double step = below(160) / 10.0;
            at_ = {at_.x + step * std::cos(angle_), at_.y + step * std::sin(angle_)};
        }
        return at_;
    }

    int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

private:
    std::mt19937 random_;
    Point at_{130, 90};
    double angle_ = 0;
};

TEST(StrokeInProgress, ShowsAtEachMomentWhatDrawingItWholeWould) {
    for (unsigned seed = 0; seed < 48; ++seed) {
        Pointer pointer(seed);
        const double scale = std::vector{0.4, 1.0, 1.0, 2.5}[seed % 4];
        const double width = seed % 3 == 0 ? 160 : 1 + pointer.below(seed % 3 == 1 ? 24 : 80);
        Stroke stroke = makeStroke({pointer.next()}, width);
        stroke.opacity = seed % 2 == 0 ? 0.5 : 1;
        StrokeInProgress inProgress;
        Canvas shown = cleanCanvas();
        for (int step = 0; step < 50; ++step) {
            const auto changed = inProgress.update(&stroke, scale).intersectedWith(sight);
            if (!changed.isEmpty()) {
                const PixelBuffer part = shown.part(changed);
                for (int y = changed.top; y < changed.bottom; ++y)
                    std::fill_n(part.pixel(changed.left, y), 4 * changed.width(), 0x5A);
                inProgress.paint(part);
            }
            ASSERT_EQ(shown.bytes(), drawnWhole(stroke, scale))
                << "seed " << seed << ", width " << width << ", points " << stroke.points.size();
            for (int events = 1 + pointer.below(10) / 8; events > 0; --events)
                stroke.points.append(pointer.next());
        }
    }
}

TEST(StrokeInProgress, StartsAnewForAnotherStroke) {
    StrokeInProgress inProgress;
    const auto verify = [&](const Stroke& stroke, double scale) {
        inProgress.update(&stroke, scale);
        EXPECT_EQ(shownBy(inProgress), drawnWhole(stroke, scale));
    };
    for (const double width : {5.0, 50.0}) {
        verify(makeStroke({{10, 10}, {60, 30}, {90, 90}}, width), 1);
        verify(makeStroke({{10, 10}, {60, 31}, {90, 90}, {100, 120}}, width), 1);
        verify(makeStroke({{10, 10}, {60, 31}, {90, 90}, {100, 120}}, width + 1), 1);
        verify(makeStroke({{10, 10}, {60, 31}, {90, 90}, {100, 120}}, width + 1), 1.5);
        verify(makeStroke({{10, 10}, {60, 31}, {90, 90}}, width + 1), 1.5);
    }
    const IntRect gone = inProgress.update(nullptr, 1.5);
    EXPECT_LE(gone.left, -20);
    EXPECT_GE(gone.bottom, 170);
    EXPECT_EQ(inProgress.update(nullptr, 1.5), IntRect{});
}

TEST(StrokeInProgress, IsDrawnWholeBeyondItsBounds) {
    for (const double width : {3.0, 70.0}) {
        StrokeInProgress bounded(200000);
        StrokeInProgress unbounded;
        Stroke stroke = makeStroke({{10, 10}, {60, 30}}, width);
        const auto update = [&] {
            unbounded.update(&stroke, 1);
            bounded.update(&stroke, 1);
            EXPECT_EQ(shownBy(bounded), drawnWhole(stroke, 1));
        };
        update();
        for (int i = 0; i < 20; ++i) {
            stroke.points.append({i * 60.0, i * 40.0});
            update();
        }
        // At least a byte for each pixel that the pen touches.
        EXPECT_GT(unbounded.growingBytes(), 1300 * width);
        EXPECT_EQ(bounded.growingBytes(), 0U);

        stroke.points.append({70000, 20});
        update();
        EXPECT_EQ(unbounded.growingBytes(), 0U);
    }
}

TEST(StrokeInProgress, DrawsPointsAndWidthsOfAnyKindWhole) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double width : {3.0, 70.0, infinity, -infinity}) {
        for (const Point odd :
             {Point{NAN, 50}, {infinity, 0}, {1e9, 1e9}, {1e300, -1e300}, {3e6, 40}, {6e4, 4e4}}) {
            Stroke stroke = makeStroke({{10, 10}, {60, 30}}, width);
            StrokeInProgress inProgress;
            for (const Point p : {odd, Point{100, 100}, Point{120, 90}}) {
                inProgress.update(&stroke, 1);
                stroke.points.append(p);
            }
            inProgress.update(&stroke, 1);
            EXPECT_EQ(shownBy(inProgress), drawnWhole(stroke, 1));
        }
    }
}

}  // namespace
