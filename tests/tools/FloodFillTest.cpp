#include "tools/FloodFill.h"

#include "tests/support/InstructionSets.h"
#include "tests/tools/FillDefinition.h"
#include "tests/tools/FillPictures.h"
#include "tools/MatchBlock.h"

#include <gtest/gtest.h>

#include <limits>

using namespace marlevo;

namespace {

void expectRegionOfTheDefinition(const RasterImage& image, GridPoint seed, int tolerance) {
    SCOPED_TRACE(testing::Message() << image.width() << " x " << image.height() << " from "
                                    << seed.x << ", " << seed.y << " within " << tolerance);
    const Region region = floodFill(image, seed, tolerance);
    const filldefinition::Cells cells = filldefinition::flood(image, seed, tolerance);
    EXPECT_EQ(region.size(), cells.size());
    EXPECT_EQ(filldefinition::cellsOf(region), cells);

    Region::Bounds bounds{image.width(), image.height(), 0, 0};
    for (const std::int64_t i : cells) {
        const int x = static_cast<int>(i % image.width());
        const int y = static_cast<int>(i / image.width());
        bounds = {std::min(bounds.minX, x), std::min(bounds.minY, y), std::max(bounds.maxX, x),
                  std::max(bounds.maxY, y)};
    }
    EXPECT_EQ(region.bounds(), bounds);
}

TEST(FloodFill, FindsTheRegionOfTheDefinitionInPicturesOfEveryKind) {
    std::mt19937 random(1);
    for (const Region& shape : fillpictures::variousRegions(random)) {
        const RasterImage image = fillpictures::pictureOf(shape);
        for (int attempt = 0; attempt < 6; ++attempt) {
            const GridPoint seed{static_cast<int>(random() % shape.width()),
                                 static_cast<int>(random() % shape.height())};
            expectRegionOfTheDefinition(image, seed, fillTolerance);
        }
    }
}

TEST(FloodFill, ComparesEveryByteWithTheSeedAtEveryTolerance) {
    std::mt19937 random(2);
    for (int picture = 0; picture < 60; ++picture) {
        const int width = 1 + static_cast<int>(random() % 150);
        const int height = 1 + static_cast<int>(random() % 40);
        // Small spreads give regions with ragged edges, large ones reach both ends of a byte.
        const auto spread = 1 + random() % 256;
        const auto base = random() % (257 - spread);
        std::vector<std::uint8_t> bytes(std::size_t{4} * width * height);
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(base + random() % spread);
        const RasterImage image(width, height, std::move(bytes));
        const GridPoint seed{static_cast<int>(random() % width),
                             static_cast<int>(random() % height)};
        for (const int tolerance : {0, 1, 35, static_cast<int>(random() % 256), 255}) {
            expectRegionOfTheDefinition(image, seed, tolerance);
        }
    }
}

TEST(FloodFill, LimitsTheToleranceToTheRangeOfAByte) {
    const RasterImage image(4, 1, {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 10, 255, 0, 255, 0});
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    for (const int tolerance : {least, -256, -1})
        EXPECT_EQ(floodFill(image, {0, 0}, tolerance).size(), 2u);
    for (const int tolerance : {256, 300, most})
        EXPECT_EQ(floodFill(image, {0, 0}, tolerance).size(), 4u);
}

TEST(FloodFill, JoinsADifferenceOf35AndStopsAt36InAnyByte) {
    for (std::size_t byte = 0; byte < 4; ++byte) {
        for (const int sign : {-1, 1}) {
            std::vector<std::uint8_t> bytes(12, 120);
            bytes[byte] = static_cast<std::uint8_t>(120 + sign * 36);
            bytes[8 + byte] = static_cast<std::uint8_t>(120 + sign * 35);
            const Region region = floodFill(RasterImage(3, 1, bytes), {1, 0});
            EXPECT_FALSE(region.contains({0, 0}));
            EXPECT_TRUE(region.contains({2, 0}));
        }
    }
}

TEST(FloodFill, CountsRowsUpwardsAndFindsNothingFromOutside) {
    const RasterImage image = fillpictures::pictureOf(fillpictures::regionFrom({"##.", "..."}));
    EXPECT_EQ(floodFill(image, {0, 1}).bounds(), (Region::Bounds{0, 1, 1, 1}));
    for (const GridPoint seed : {GridPoint{-1, 0}, {0, -1}, {3, 0}, {0, 2}}) {
        EXPECT_EQ(floodFill(image, seed).size(), 0U);
        EXPECT_FALSE(floodFill(image, seed).bounds());
    }
}

TEST(MatchBlock, GivesTheSameBitsOnEveryInstructionSet) {
    std::mt19937 random(3);
    constexpr std::size_t rowBytes = 4 * 70;
    std::vector<std::uint8_t> pixels(rowBytes * 64);
    for (std::uint8_t& byte : pixels)
        byte = static_cast<std::uint8_t>(random() % 100);
    const ColorRange range = ColorRange::around(std::span(pixels).first<4>(), 60);
    std::vector<BlockBits> expected;
    withEveryInstructionSet([&](const char* name) {
        std::vector<BlockBits> blocks;
        for (const auto& [width, height] : {std::pair{64, 64}, {64, 3}, {63, 64}, {1, 1}})
            blocks.push_back(matchBlock({pixels, rowBytes, width, height}, range));
        if (expected.empty()) expected = blocks;
        EXPECT_EQ(blocks, expected) << name;
    });
}

}  // namespace
