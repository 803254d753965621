#include "render/SelectionOutline.h"

#include "tests/support/Drawing.h"

#include <gtest/gtest.h>

using namespace marlevo;

namespace {

TEST(SelectionOutline, HasTheOpacityOfATopmostVisibleLayerWithoutStrokes) {
    const Stroke dot = makeStroke({{1, 1}});
    const Stroke line = makeStroke({{1, 1}, {2, 2}});
    Layer faded("Faded");
    faded.opacity = 0.5;
    Layer drawn = faded;
    drawn.strokes.append(line);
    Layer dotted = faded;
    dotted.strokes.append(dot);
    Layer hidden = drawn;
    hidden.isVisible = false;

    EXPECT_EQ(selectionOutlineOpacity({drawn, faded}, nullptr), 0.5);
    EXPECT_EQ(selectionOutlineOpacity({drawn, faded, hidden}, nullptr), 0.5);
    EXPECT_EQ(selectionOutlineOpacity({dotted}, nullptr), 0.5) << "a dot is not drawn";
    EXPECT_EQ(selectionOutlineOpacity({faded, drawn}, nullptr), 1);
    EXPECT_EQ(selectionOutlineOpacity({hidden}, nullptr), 1);
    EXPECT_EQ(selectionOutlineOpacity({faded}, &line), 1);
    EXPECT_EQ(selectionOutlineOpacity({faded}, &dot), 0.5);
}

}  // namespace
