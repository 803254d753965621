#include "render/VisibleStrokes.h"

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

std::vector<std::uint8_t> drawn(const std::vector<const Stroke*>& strokes, double scale) {
    std::vector<std::uint8_t> bytes(std::size_t{260} * 200 * 4, 0xD0);
    BitmapContext context({bytes.data(), 260 * 4, wholeArea, PixelOrder::bgra},
                          DeviceFrame::yDown(scale));
    for (const Stroke* stroke : strokes)
        drawOnScreen(context, *stroke);
    return bytes;
}

std::vector<const Stroke*> pointers(const std::vector<StrokeInSight>& strokes) {
    std::vector<const Stroke*> result;
    for (const StrokeInSight& each : strokes)
        result.push_back(each.stroke);
    return result;
}

TEST(VisibleStrokes, WithoutTheHiddenOnesThePictureIsTheSame) {
    struct Case {
        int count;
        int oddOnes;
        double scale;
        bool hidesMost;
    };
    const std::array cases{Case{9000, 1000, 1, true},   Case{9000, 30, 1, false},
                           Case{14000, 200, 0.7, true}, Case{600, 50, 1, false},
                           Case{9000, 50, 0.1, false},  Case{2000, 1, 1, false}};
    for (unsigned i = 0; i < cases.size(); ++i) {
        const Case& each = cases[i];
        const Layer layer = scribbles(each.count, each.oddOnes, i);
        std::vector<const Stroke*> all;
        for (const Stroke& stroke : layer.strokes)
            all.push_back(&stroke);

        std::vector<std::uint8_t> scratch(std::size_t{260} * 200 * 4);
        BitmapContext context({scratch.data(), 260 * 4, wholeArea, PixelOrder::bgra},
                              DeviceFrame::yDown(each.scale));
        const std::array areas{wholeArea};
        const auto inSight = strokesInSight({{&layer}, {}}, areas, each.scale);
        const auto visible =
            withoutHidden(inSight[0], wholeArea, [&](const Stroke& stroke, CoveredPixels& covered) {
                return coverOnScreen(context, stroke, covered);
            });
        EXPECT_EQ(drawn(pointers(visible), each.scale), drawn(all, each.scale)) << "case " << i;
        if (each.hidesMost) {
            EXPECT_LT(visible.size() * 2, all.size()) << "case " << i;
        }
    }
}

TEST(CoveredPixels, KnowsWhatIsLeftOpen) {
    const IntRect area{-5, 3, 20, 10};
    CoveredPixels covered(area);
    EXPECT_FALSE(covered.containsAll({-5, 3, -4, 4}));
    EXPECT_TRUE(covered.containsAll({-9, 3, -5, 10}));  // outside
    EXPECT_EQ(covered.openPixels(), 25 * 7);
    for (int y = 2; y < 10; y += 2) {
        for (int x = -8; x < 20; x += 8)
            covered.addBlock(x, y, x == 8 && y == 4 ? 0xFFFE : 0xFFFF);
    }
    EXPECT_FALSE(covered.containsAll());
    EXPECT_EQ(covered.openPixels(), 1);
    EXPECT_TRUE(covered.containsAll({-5, 3, 8, 10}));
    EXPECT_FALSE(covered.containsAll({-5, 3, 9, 10}));
    EXPECT_TRUE(covered.isOpen(8, 4));
    EXPECT_FALSE(covered.isOpen(0, 4));
    covered.addBlock(8, 4, 1);
    EXPECT_TRUE(covered.containsAll());
    covered.addBlock(800, 400, 0xFFFF);  // no matter
}

}  // namespace
}  // namespace marlevo
