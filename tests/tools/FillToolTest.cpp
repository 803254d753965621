#include "tools/FillTool.h"

#include "model/DrawingDocument.h"
#include "tests/support/Drawing.h"
#include "tools/EyeDropper.h"

#include <gtest/gtest.h>

using namespace marlevo;

namespace {

class FillTool : public testing::Test {
protected:
    FillTool() { document.ensureLayers(); }

    const Layer& top() const { return document.layers->back(); }

    DrawingDocument document;
};

TEST_F(FillTool, CoversAnEmptyCanvasByOneShapeOnALayerOfItsOwn) {
    document.selectedColor = Color{1, 0, 0, 1};
    document.brushOpacity = 0.5;
    performFill(document, {640, 360});

    ASSERT_EQ(document.layers->size(), 2u);
    EXPECT_EQ(document.activeLayerIndex, 1);
    EXPECT_EQ(top().name, "Fill 1");
    ASSERT_EQ(top().strokes.size(), 1u);
    const Stroke& shape = top().strokes[0];
    EXPECT_EQ(shape.points, (PointList{{0, 1}, {0, 720}, {1279, 720}, {1279, 1}, {1, 1}}));
    EXPECT_EQ(shape.color, (Color{1, 0, 0, 1}));
    EXPECT_EQ(shape.lineWidth, 0);
    EXPECT_EQ(shape.opacity, 0.5);
    EXPECT_TRUE(shape.isFill);
    EXPECT_FALSE(shape.isEraser);
    EXPECT_EQ(shape.shapeType, Stroke::ShapeType::freehand);

    document.undo();
    EXPECT_EQ(document.layers->size(), 1u);
    EXPECT_FALSE(document.canUndo());
}

TEST_F(FillTool, StaysInsideAClosedOutline) {
    addStroke(document, makeStroke({{100, 100}, {300, 250}}, 4, Stroke::ShapeType::rect));
    document.addLayer();
    performFill(document, {200, 200});
    EXPECT_EQ(top().name, "Fill 2");
    const Rect bounds = top().strokes[0].boundingRect();
    EXPECT_NEAR(bounds.minX(), 102, 1);
    EXPECT_NEAR(bounds.minY(), 102, 1);
    EXPECT_NEAR(bounds.maxX(), 298, 1);
    EXPECT_NEAR(bounds.maxY(), 248, 1.5);
}

TEST_F(FillTool, RegionsWithoutAnOutlineBecomeTheirBox) {
    document.canvasSize = CanvasSize{6, 3};
    performFill(document, {1, 1});
    EXPECT_EQ(top().strokes[0].points, (PointList{{0, 3}, {5, 3}, {5, 1}, {0, 1}, {0, 3}}));
}

TEST_F(FillTool, ClicksOutsideOrOnNoPictureChangeNothing) {
    for (const Point p : {Point{1280, 10}, Point{10, 720}, Point{-1, 5}, Point{5, -1e300}})
        performFill(document, p);
    document.canvasSize = CanvasSize{0.5, 100};
    performFill(document, {0, 0});
    EXPECT_EQ(document.layers->size(), 1u);
    EXPECT_FALSE(document.canUndo());
    document.canvasSize = CanvasSize{100, 100};
    performFill(document, {-0.5, -0.5});
    EXPECT_EQ(document.layers->size(), 2u) << "truncated toward zero, it lies in the first cell";
}

TEST(EyeDropper, PicksWhatAnExportShowsAndTurnsItselfOff) {
    DrawingDocument document;
    document.ensureLayers();
    document.isEyeDropper = true;
    pickColor(document, {1280, 5});
    pickColor(document, {5, -1});
    EXPECT_TRUE(document.isEyeDropper);
    EXPECT_EQ(document.selectedColor.get(), black);

    pickColor(document, {5, 5});
    EXPECT_EQ(document.selectedColor.get(), white);
    EXPECT_FALSE(document.isEyeDropper);

    Stroke stroke = makeStroke({{10, 10}, {90, 10}}, 12);
    stroke.color = {1, 0, 0, 1};
    stroke.opacity = 0.5;
    addStroke(document, stroke);
    document.backgroundIsTransparent = true;
    pickColor(document, {50.9, 10.2});
    EXPECT_NEAR(document.selectedColor->red, 0.5, 0.01);
    EXPECT_EQ(document.selectedColor->green, 0);
    EXPECT_EQ(document.selectedColor->alpha, 1);
    pickColor(document, {50, 60});
    EXPECT_EQ(document.selectedColor.get(), black);
    EXPECT_FALSE(document.canUndo());
}

}  // namespace
