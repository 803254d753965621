#include "tools/StrokeCapture.h"

#include "model/DrawingDocument.h"

#include <gmock/gmock.h>

#include <vector>

using namespace marlevo;

namespace {

using testing::ElementsAre;
using P = DocumentProperty;
using ShapeType = Stroke::ShapeType;

class StrokeCapture : public testing::Test {
protected:
    StrokeCapture() {
        doc.selectedColor = Color{0.1, 0.2, 0.3, 0.4};
        doc.backgroundColor = Color{0.5, 0.6, 0.7, 1};
        doc.brushOpacity = 0.5;
    }

    Stroke draw(std::initializer_list<Point> positions) {
        beginStroke(doc, *positions.begin());
        for (const Point* at = positions.begin() + 1; at != positions.end(); ++at)
            addPointToStroke(doc, *at);
        const Stroke drawn = **doc.currentStroke;
        endStroke(doc);
        return drawn;
    }
    const StrokeList& strokes() const { return doc.layers->back().strokes; }

    DrawingDocument doc;
};

TEST_F(StrokeCapture, TheBrushKeepsEveryPosition) {
    doc.isFillTool = true;
    const Stroke brush = draw({{-5, 3}, {1, 1}, {1, 1}, {1e9, 2}});
    EXPECT_EQ(brush.points, (PointList{{-5, 3}, {1, 1}, {1, 1}, {1e9, 2}}));
    EXPECT_EQ(brush.color, (Color{0.1, 0.2, 0.3, 0.4}));
    EXPECT_EQ(brush.lineWidth, 3.0);
    EXPECT_EQ(brush.opacity, 0.5);
    EXPECT_EQ(brush.shapeType, ShapeType::freehand);
    EXPECT_FALSE(brush.isEraser || brush.isFill);
    ASSERT_EQ(strokes().size(), 1u);
    EXPECT_EQ(strokes()[0].points, brush.points);
}

TEST_F(StrokeCapture, TheEraserIsABroadOpaqueStrokeInTheBackgroundOfItsBeginning) {
    doc.isEraser = true;
    beginStroke(doc, {0, 0});
    doc.backgroundColor = black;
    doc.lineWidth = 1;
    addPointToStroke(doc, {1, 1});
    endStroke(doc);
    EXPECT_EQ(strokes()[0].color, (Color{0.5, 0.6, 0.7, 1}));
    EXPECT_EQ(strokes()[0].lineWidth, 24.0);
    EXPECT_EQ(strokes()[0].opacity, 1.0);
    EXPECT_TRUE(strokes()[0].isEraser);
}

TEST_F(StrokeCapture, AShapeHasTwoPointsAndBeatsTheEraser) {
    doc.isEraser = true;
    doc.isShapeTool = true;
    const Stroke shape = draw({{0, 0}, {5, 5}, {9, 1}, {2, 3}});
    EXPECT_EQ(shape.points, (PointList{{0, 0}, {2, 3}}));
    EXPECT_EQ(shape.shapeType, ShapeType::rect);
    EXPECT_EQ(shape.color, (Color{0.1, 0.2, 0.3, 0.4}));
    EXPECT_FALSE(shape.isEraser);

    doc.currentShapeType = ShapeType::line;
    draw({{7, 7}});
    EXPECT_EQ(strokes()[1].points, (PointList{{7, 7}, {7, 7}}));
}

TEST_F(StrokeCapture, TheLayerActiveAtTheEndReceivesTheStroke) {
    doc.ensureLayers();
    doc.addLayer();
    doc.toggleLayerVisibility(0);
    beginStroke(doc, {0, 0});
    addPointToStroke(doc, {1, 1});
    doc.activeLayerIndex = 0;
    endStroke(doc);
    EXPECT_EQ(doc.layers->front().strokes.size(), 1u);

    beginStroke(doc, {0, 0});
    addPointToStroke(doc, {1, 1});
    doc.activeLayerIndex = -1;
    endStroke(doc);
    EXPECT_EQ(doc.layers->front().strokes.size(), 1u);
    EXPECT_TRUE(doc.layers->back().strokes.isEmpty());
    EXPECT_FALSE(doc.currentStroke->has_value());
}

TEST_F(StrokeCapture, PublishesTheLayersBeforeTheStrokeInProgress) {
    std::vector<P> published;
    Reader reader(doc.changeRegistry(), [&](P property) { published.push_back(property); });
    reader.observe([&] {
        (void)*doc.layers, (void)*doc.activeLayerIndex, (void)*doc.currentStroke;
        (void)doc.canUndo(), (void)doc.canRedo();
    });
    addPointToStroke(doc, {1, 1});
    EXPECT_TRUE(published.empty());
    beginStroke(doc, {0, 0});
    EXPECT_THAT(published, ElementsAre(P::layers, P::undoStack, P::redoStack, P::currentStroke));
    published.clear();
    addPointToStroke(doc, {1, 1});
    EXPECT_THAT(published, ElementsAre(P::currentStroke));
    published.clear();
    endStroke(doc);
    EXPECT_THAT(published, ElementsAre(P::layers, P::currentStroke));
    published.clear();
    endStroke(doc);
    EXPECT_THAT(published, ElementsAre(P::currentStroke));
}

}  // namespace
