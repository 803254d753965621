#include "graphics/DrawImage.h"

#include "tests/graphics/Supersampling.h"
#include "tests/support/InstructionSets.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

using namespace marlevo;

namespace {

using Pixel = std::array<int, 4>;

template <class Color>
RasterImage imageOf(int width, int height, Color color) {
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (const int byte : Pixel(color(x, y)))
                bytes.push_back(std::uint8_t(byte));
    return RasterImage(width, height, bytes);
}

RasterImage noise(int width, int height) {
    std::mt19937 random(9);
    return imageOf(width, height, [&](int, int) {
        const int alpha = int(random() % 256);
        const auto component = [&] { return int(random() % unsigned(alpha + 1)); };
        return Pixel{alpha, component(), component(), component()};
    });
}

Pixel at(const PixelBuffer& buffer, int x, int y) {
    const std::uint8_t* p = buffer.pixel(x, y);
    return {p[0], p[1], p[2], p[3]};
}

constexpr Pixel red{255, 255, 0, 0};
constexpr Pixel blue{255, 0, 0, 255};

TEST(DrawImage, CopiesExactlyAtScaleOne) {
    const RasterImage image = noise(37, 23);
    Canvas canvas(60, 40);
    drawImage(image, {5, 7, 42, 30}, 1, canvas.buffer());
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            const bool inside = x >= 5 && x < 42 && y >= 7 && y < 30;
            Pixel expected{};
            if (inside) std::ranges::copy(image.pixel(x - 5, y - 7), expected.begin());
            ASSERT_EQ(at(canvas.buffer(), x, y), expected) << x << ", " << y;
        }
    }
}

TEST(DrawImage, EnlargesSmoothlyAndKeepsEdgesClamped) {
    const RasterImage image = imageOf(2, 1, [](int x, int) { return x == 0 ? red : blue; });
    Canvas canvas(200, 50);
    drawImage(image, {0, 0, 200, 50}, 1, canvas.buffer());
    for (int x = 0; x < 200; ++x) {
        const double blueness = std::clamp((x + 0.5 - 50) / 100, 0.0, 1.0);
        ASSERT_NEAR(at(canvas.buffer(), x, 20)[3], 255 * blueness, 1) << x;
        ASSERT_EQ(at(canvas.buffer(), x, 20)[0], 255) << x;
    }
}

TEST(DrawImage, ReducesWithoutAliasing) {
    // Stripes one pixel wide: every mean is half of them, wherever the samples would fall.
    const RasterImage stripes =
        imageOf(1200, 900, [](int x, int y) { return (x + y) % 2 == 0 ? red : blue; });
    Canvas canvas(88, 64);
    drawImage(stripes, {0, 0, 88, 64}, 1, canvas.buffer());
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 88; ++x) {
            ASSERT_EQ(at(canvas.buffer(), x, y)[0], 255);
            ASSERT_NEAR(at(canvas.buffer(), x, y)[1], 127.5, 3) << x << ", " << y;
        }
    }
}

TEST(DrawImage, BlendsAtAlphaAndAlongFractionalEdges) {
    const RasterImage image = imageOf(4, 4, [](int, int) { return Pixel{200, 100, 50, 200}; });
    Canvas canvas(20, 20);
    drawImage(image, {2.25, 3.5, 10, 12}, 0.5, canvas.buffer());
    EXPECT_EQ(at(canvas.buffer(), 5, 5), (Pixel{100, 50, 25, 100}));
    EXPECT_NEAR(at(canvas.buffer(), 2, 5)[0], 75, 1);
    EXPECT_NEAR(at(canvas.buffer(), 5, 3)[0], 50, 1);
    EXPECT_NEAR(at(canvas.buffer(), 2, 3)[0], 37, 1);
    EXPECT_EQ(at(canvas.buffer(), 10, 5)[0], 0);

    // Source-over on the background: 100 + 100 · (155 / 255).
    drawImage(image, {2.25, 3.5, 10, 12}, 0.5, canvas.buffer());
    EXPECT_EQ(at(canvas.buffer(), 5, 5)[0], 161);
}

TEST(DrawImage, GivesTheSameBytesWithEveryInstructionSet) {
    const RasterImage image = noise(131, 97);
    std::vector<std::uint8_t> expected;
    withEveryInstructionSet([&](const char* name) {
        Canvas canvas(203, 150);
        PixelBuffer reversed = canvas.part({0, 90, 203, 150});
        reversed.order = PixelOrder::bgra;
        drawImage(image, {-3.3, 2, 190.6, 80.2}, 0.8, canvas.buffer());
        drawImage(image, {7, 50.4, 61, 149}, 0.8, canvas.buffer());
        drawImage(image, {40, 20, 171, 117}, 0.5, reversed);
        if (expected.empty()) expected = canvas.bytes();
        EXPECT_EQ(canvas.bytes(), expected) << name;
    });
}

TEST(DrawImage, AcceptsRectanglesOfAnyKind) {
    const double inf = std::numeric_limits<double>::infinity();
    const RasterImage image = imageOf(300, 200, [](int, int) { return red; });
    Canvas canvas(40, 30);
    const std::vector<std::uint8_t> untouched = canvas.bytes();
    for (const Bounds& rect : {Bounds{0, 0, inf, 10},
                               {-inf, 0, inf, 10},
                               {std::nan(""), 0, 10, 10},
                               {5, 5, 5, 20},
                               {20, 5, 10, 20},
                               {50, 0, 80, 30},
                               {-1e300, 0, -1e299, 30},
                               {5, 5, 5 + 1e-9, 20}}) {
        drawImage(image, rect, 1, canvas.buffer());
        EXPECT_EQ(canvas.bytes(), untouched) << rect.left << " to " << rect.right;
    }
    drawImage(image, {0, 0, 40, 30}, std::nan(""), canvas.buffer());
    drawImage(image, {0, 0, 40, 30}, 0, canvas.buffer());
    EXPECT_EQ(canvas.bytes(), untouched);
    for (const double far : {1e7, 1e12, 1e300, 1.7e308}) {
        Canvas covered(40, 30);
        drawImage(image, {-far, -far, far, far}, 7, covered.buffer());
        EXPECT_EQ(at(covered.buffer(), 20, 15), red) << far;
    }
}

}  // namespace
