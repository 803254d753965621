#include "render/VisibleStrokes.h"

#include "render/StrokePainting.h"
#include "tests/support/Canvas.h"
#include "tests/support/Drawing.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <vector>

using namespace marlevo;

namespace {

/// Scribbles over each other; one in `oddOnes` is translucent, wide, a shape or a fill.
Layer scribbles(int count, int oddOnes, unsigned seed) {
    std::mt19937 random(seed);
    const auto below = [&](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
    std::vector<Stroke> strokes;
    for (int i = 0; i < count; ++i) {
        std::vector<Point> points{{below(3200) / 10.0 - 30, below(2600) / 10.0 - 30}};
        for (int n = 1 + below(6); n > 0; --n) {
            points.push_back({points.back().x + below(600) / 10.0 - 30,
                              points.back().y + below(600) / 10.0 - 30});
        }
        Stroke stroke = makeStroke(PointList(std::move(points)), 1 + below(60) / 10.0);
        stroke.color = {below(256) / 255.0, below(256) / 255.0, below(256) / 255.0, 1};
        if (below(oddOnes) == 0) {
            if (below(3) == 0) stroke.opacity = 0.5;
            if (below(3) == 0) stroke.lineWidth = 40;
            if (below(6) == 0) stroke.lineWidth = 0.3;
            stroke.isFill = below(4) == 0;
            stroke.shapeType = Stroke::allShapeTypes[below(4)];
        }
        strokes.push_back(std::move(stroke));
    }
    Layer layer("Scribbles");
    layer.strokes = StrokeList(std::move(strokes));
    return layer;
}

/// Checks that drawing the visible strokes of each part gives the same picture as drawing all
/// strokes from the lowest to the topmost. Returns the number of drawn strokes.
std::size_t drawInParts(const Layer& layer, double scale, const std::vector<IntRect>& parts,
                        FrontToBackContext::Limits limits = {}) {
    IntRect whole;
    for (const IntRect& part : parts)
        whole = whole.unitedWith(part);
    Canvas expected(whole, PixelOrder::bgra, 0xD0);
    BitmapContext plain(expected.buffer(), DeviceFrame::yDown(scale));
    for (const Stroke& stroke : layer.strokes)
        drawStrokeOnScreen(plain, stroke);

    Canvas picture(whole, PixelOrder::bgra, 0xD0);
    std::size_t drawn = 0;
    const VisibleStrokes strokes({{&layer}, {}}, whole, scale);
    for (const IntRect& part : parts) {
        BitmapContext context(picture.part(part), DeviceFrame::yDown(scale));
        const auto draw = [&](GraphicsContext& to, const Stroke& stroke) {
            ++drawn;
            drawStrokeOnScreen(to, stroke);
        };
        strokes.draw(context, draw, limits);
    }
    EXPECT_TRUE(picture.bytes() == expected.bytes()) << "in " << parts.size() << " parts";
    return drawn;
}

TEST(VisibleStrokes, GiveThePictureOfAllStrokesAndSkipTheHiddenOnes) {
    struct Case {
        int count;
        int oddOnes;
        double scale;
        bool hidesMost;
    };
    const std::array cases{Case{9000, 1000, 1, true},   Case{9000, 30, 1, false},
                           Case{14000, 200, 0.7, true}, Case{600, 50, 1, false},
                           Case{9000, 50, 0.1, false},  Case{2000, 1, 1, false},
                           Case{60, 3, 1, false},       Case{100, 3, 1, false},
                           Case{400, 100, 2.5, false},  Case{12000, 2, 1, false}};
    for (unsigned i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(i);
        const Case& each = cases[i];
        const Layer layer = scribbles(each.count, each.oddOnes, i);
        const std::size_t drawn = drawInParts(layer, each.scale, {{0, 0, 260, 200}});
        drawInParts(layer, each.scale, {{0, 0, 131, 77}, {131, 0, 260, 77}, {0, 77, 260, 200}});
        if (each.hidesMost) {
            EXPECT_LT(drawn * 3, layer.strokes.size());
        }
    }
}

TEST(VisibleStrokes, AreAllDrawnBelowTheOnesThatFillTheRecord) {
    const Layer layer = scribbles(9000, 100, 0);
    const IntRect area{0, 0, 260, 200};
    const std::size_t all = VisibleStrokes({{&layer}, {}}, area, 1).count();
    EXPECT_EQ(drawInParts(layer, 1, {area}, {.blocks = 0, .elements = 1000}), all);
    EXPECT_EQ(drawInParts(layer, 1, {area}, {.blocks = 200, .elements = 1000}), all);
    EXPECT_EQ(drawInParts(layer, 1, {area}, {.blocks = 100000, .elements = 4}), all);
}

/// Their distances are found in several bands of rows.
TEST(VisibleStrokes, MaySpanLargeParts) {
    for (const double opacity : {1.0, 0.5}) {
        std::mt19937 random(7);
        std::uniform_real_distribution<double> x(-40, 1700);
        std::uniform_real_distribution<double> y(-40, 240);
        Layer layer("Sprawling");
        for (int i = 0; i < 300; ++i) {
            Stroke stroke = makeStroke({{x(random), y(random)},
                                        {x(random), y(random)},
                                        {x(random), y(random)},
                                        {x(random), y(random)}},
                                       9);
            stroke.opacity = i % 3 == 0 ? opacity : 1;
            layer.strokes.append(stroke);
        }
        drawInParts(layer, 1, {{-3, 1, 1660, 128}, {-3, 128, 1660, 221}});
    }
}

}  // namespace
