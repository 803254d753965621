#include "tools/TraceBoundary.h"

#include "tests/tools/FillDefinition.h"
#include "tests/tools/FillPictures.h"
#include "tools/Chord.h"
#include "tools/FloodFill.h"

#include <gmock/gmock.h>

namespace marlevo {

void PrintTo(const GridPoint& point, std::ostream* out) {
    *out << "(" << point.x << ", " << point.y << ")";
}

namespace {

using testing::ElementsAre;
using testing::SizeIs;
using Points = std::vector<GridPoint>;

Region block(int width, int height, int gridWidth, int gridHeight) {
    Region region(gridWidth, gridHeight);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            region.insert({x, y});
    }
    return region;
}

void expectOutlineOfTheDefinition(const Region& region) {
    SCOPED_TRACE(testing::Message() << region.width() << " x " << region.height());
    const Points outline =
        filldefinition::outline(filldefinition::cellsOf(region), region.width(), region.height());
    EXPECT_EQ(traceOutline(region), outline);
    EXPECT_EQ(traceBoundary(region),
              outline.size() < 4 ? outline : filldefinition::simplified(outline, 2.0));
}

TEST(TraceBoundary, FollowsTheDefinitionAroundRegionsOfEveryKind) {
    std::mt19937 random(4);
    for (const Region& region : fillpictures::variousRegions(random)) {
        // The whole region, which may have many pieces or none, and the piece around a cell.
        expectOutlineOfTheDefinition(region);
        const GridPoint seed{static_cast<int>(random() % region.width()),
                             static_cast<int>(random() % region.height())};
        expectOutlineOfTheDefinition(floodFill(fillpictures::pictureOf(region), seed));
    }
}

TEST(TraceBoundary, FollowsTheDefinitionAroundEverySmallRegion) {
    constexpr int side = 4;
    for (unsigned cells = 0; cells < 1U << (side * side); ++cells) {
        Region region(side, side);
        for (int i = 0; i < side * side; ++i) {
            if (cells >> i & 1) region.insert({i % side, i / side});
        }
        expectOutlineOfTheDefinition(region);
    }
}

TEST(TraceBoundary, GivesTheSameVerticesInAnEnormousGrid) {
    const int enormous = static_cast<int>(Chord::exactExtent) + 1;
    EXPECT_EQ(traceBoundary(block(30, 4, enormous, 4)), traceBoundary(block(30, 4, 40, 4)));
    EXPECT_THAT(traceBoundary(block(1, 2, enormous, 4)), SizeIs(2));
}

TEST(BoundingRectangle, JoinsTheOutermostCellsAndClosesItself) {
    const Region region = fillpictures::regionFrom({"......",  //
                                                    "...#..",  //
                                                    ".##...",  //
                                                    "......"});
    EXPECT_THAT(boundingRectangle(region),
                ElementsAre(GridPoint{1, 1}, GridPoint{3, 1}, GridPoint{3, 2}, GridPoint{1, 2},
                            GridPoint{1, 1}));
}

}  // namespace
}  // namespace marlevo
