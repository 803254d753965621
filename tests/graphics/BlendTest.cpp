#include "graphics/Blend.h"

#include "tests/support/InstructionSets.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace marlevo;

TEST(Blend, RoundsEveryProductToNearest) {
    for (unsigned a = 0; a <= 255; ++a) {
        for (unsigned b = 0; b <= 255; ++b) {
            ASSERT_EQ(mulDiv255(a, b), std::lround(a * b / 255.0)) << a << " * " << b;
        }
    }
}

// Three products, each at most half a step off.
TEST(Blend, StaysNearExactSourceOver) {
    for (int alpha = 0; alpha <= 255; alpha += 5) {
        for (int color = 0; color <= alpha; color += 5) {
            for (int below = 0; below <= 255; below += 3) {
                for (int coverage = 0; coverage <= 255; coverage += 5) {
                    const double share = coverage / 255.0;
                    const double exact = color * share + below * (1 - alpha / 255.0 * share);
                    ASSERT_NEAR(blendByte(below, color, alpha, coverage), exact, 1.5)
                        << alpha << ' ' << color << ' ' << below << ' ' << coverage;
                }
            }
        }
    }
}

TEST(Blend, LeavesPixelsAloneWithoutCoverageAndReplacesThemWhenOpaque) {
    for (int below = 0; below <= 255; ++below) {
        EXPECT_EQ(blendByte(below, 200, 255, 0), below);
        EXPECT_EQ(blendByte(below, 200, 255, 255), 200);
    }
}

TEST(Blend, PacksColorsInEitherOrderAndClampsThem) {
    const Color orange{1, 0.5, 0, 1};
    EXPECT_THAT(packColor(orange, 1, PixelOrder::argb).bytes,
                testing::ElementsAre(255, 255, 128, 0));
    EXPECT_THAT(packColor(orange, 1, PixelOrder::bgra).bytes,
                testing::ElementsAre(0, 128, 255, 255));
    EXPECT_EQ(packColor(orange, 0.5, PixelOrder::bgra).alpha, 128);

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_THAT(packColor({-3, infinity, nan, 7}, 2, PixelOrder::argb).bytes,
                testing::ElementsAre(255, 0, 255, 0));
    EXPECT_EQ(packColor(white, nan, PixelOrder::argb).alpha, 0);
    EXPECT_THAT(packColor({1, 1, 1, nan}, 1, PixelOrder::argb).bytes, testing::Each(0));
    EXPECT_THAT(packColor({nan, 1, 1, 1}, 1, PixelOrder::bgra).bytes,
                testing::ElementsAre(255, 255, 0, 255));
}

TEST(Blend, VectorsGiveTheBytesOfScalarCode) {
    std::mt19937 random(1);
    const auto byte = [&] { return static_cast<std::uint8_t>(random()); };
    withEveryInstructionSet([&](const char* target) {
        for (const std::size_t count : {0, 1, 3, 4, 7, 8, 15, 16, 17, 31, 100, 1000}) {
            std::vector<std::uint8_t> below(4 * count + 4);
            std::vector<std::uint8_t> coverage(count);
            for (auto& b : below)
                b = byte();
            for (auto& c : coverage)
                c = byte();
            const Color color{byte() / 255.0, byte() / 255.0, byte() / 255.0, byte() / 255.0};
            const PackedColor packed = packColor(color, 1, PixelOrder::argb);

            std::vector<std::uint8_t> expected = below;
            std::vector<std::uint8_t> actual = below;
            for (std::size_t i = 0; i < count; ++i) {
                blendPixel(expected.data() + 4 * i, packed, coverage[i]);
            }
            blendSpan(actual.data(), coverage.data(), count, packed);
            EXPECT_EQ(actual, expected) << target << ", " << count << " pixels";

            for (std::size_t i = 0; i < count; ++i) {
                blendPixel(expected.data() + 4 * i, packed, 255);
            }
            blendSolid(actual.data(), count, packed);
            EXPECT_EQ(actual, expected) << target << ", solid, " << count << " pixels";
        }
    });
}
