#include "model/DrawingDocument.h"

#include <gtest/gtest.h>

namespace marlevo {
namespace {

TEST(StrokeCapture, PutsTheFinishedStrokeOnTheActiveLayer) {
    DrawingDocument doc;
    doc.beginStroke({1, 2});
    doc.addPointToStroke({3, 4});
    doc.addPointToStroke({3, 4});
    doc.endStroke();
    ASSERT_EQ(doc.activeLayer()->strokes.size(), 1u);
    EXPECT_EQ(doc.activeLayer()->strokes[0].points, (PointList{{1, 2}, {3, 4}, {3, 4}}));
    EXPECT_FALSE(doc.currentStroke->has_value());
}

}  // namespace
}  // namespace marlevo
