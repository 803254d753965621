#include "render/StrokesInSight.h"

#include "render/DrawOnScreen.h"
#include "tests/support/Strokes.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>
#include <vector>

namespace marlevo {
namespace {

constexpr IntRect wholeArea{0, 0, 260, 200};

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

/// A picture of the whole area, of which parts may be drawn.
struct Picture {
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(std::size_t{260} * 200 * 4, 0xD0);

    PixelBuffer pixels() { return {bytes.data(), 260 * 4, wholeArea, PixelOrder::bgra}; }
};

TEST(StrokesInSight, GiveThePictureOfAllStrokesAndSpareTheHiddenOnes) {
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
    const std::array<std::vector<IntRect>, 2> cuts{
        {{wholeArea}, {{0, 0, 131, 77}, {131, 0, 260, 77}, {0, 77, 260, 200}}}};
    for (unsigned i = 0; i < cases.size(); ++i) {
        const Case& each = cases[i];
        const Layer layer = scribbles(each.count, each.oddOnes, i);
        Picture expected;
        BitmapContext plain(expected.pixels(), DeviceFrame::yDown(each.scale));
        for (const Stroke& stroke : layer.strokes)
            drawOnScreen(plain, stroke);

        const StrokesInSight strokes({{&layer}, {}}, wholeArea, each.scale);
        for (const std::vector<IntRect>& parts : cuts) {
            Picture picture;
            std::size_t drawn = 0;
            for (const IntRect& part : parts) {
                BitmapContext context(picture.pixels().part(part), DeviceFrame::yDown(each.scale));
                strokes.draw(part, context, [&](GraphicsContext& to, const Stroke& stroke) {
                    ++drawn;
                    drawOnScreen(to, stroke);
                });
            }
            EXPECT_TRUE(picture.bytes == expected.bytes)
                << "case " << i << " in " << parts.size() << " parts";
            if (each.hidesMost) {
                EXPECT_LT(drawn, parts.size() * layer.strokes.size() / 3) << "case " << i;
            }
        }
    }
}

TEST(CoveredPixels, KnowsWhatIsLeftOpen) {
    const IntRect area{-5, 3, 20, 10};
    CoveredPixels covered(area);
    EXPECT_FALSE(covered.containsAll({-5, 3, -4, 4}));
    EXPECT_TRUE(covered.containsAll({-9, 3, -5, 10}));  // outside
    EXPECT_EQ(covered.openShare(), 1);
    for (int y = 2; y < 10; y += 2) {
        for (int x = -8; x < 20; x += 8)
            covered.addBlock(x, y, x == 8 && y == 4 ? 0xFFFE : 0xFFFF);
    }
    EXPECT_FALSE(covered.containsAll());
    EXPECT_EQ(covered.openShare(), 1.0 / (25 * 7));
    EXPECT_TRUE(covered.containsAll({-5, 3, 8, 10}));
    EXPECT_FALSE(covered.containsAll({-5, 3, 9, 10}));
    EXPECT_EQ(covered.openPixelsOf(8, 4), 1U);
    EXPECT_EQ(covered.openPixelsOf(0, 4), 0U);
    EXPECT_EQ(covered.openPixelsOf(800, 400), 0U);
    EXPECT_TRUE(covered.anyOpen(8, 2, 4));
    EXPECT_FALSE(covered.anyOpen(8, 6, 2));
    EXPECT_FALSE(covered.anyOpen(0, 2, 4));
    covered.addBlock(8, 4, 1);
    EXPECT_TRUE(covered.containsAll());
    covered.addBlock(800, 400, 0xFFFF);  // no matter
}

}  // namespace
}  // namespace marlevo
