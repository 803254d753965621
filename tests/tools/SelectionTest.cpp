#include "tools/Selection.h"

#include "model/DrawingDocument.h"
#include "tests/support/Drawing.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

using namespace marlevo;

namespace {

using Type = Stroke::ShapeType;
using Place = std::pair<std::size_t, std::size_t>;  // layer, stroke

class Selection : public testing::Test {
protected:
    Selection() { document.ensureLayers(); }

    void add(const Stroke& stroke, std::size_t layer = 0) { addStroke(document, stroke, layer); }

    std::optional<Place> selected() const {
        for (std::size_t layer = 0; layer < document.layers->size(); ++layer) {
            if ((*document.layers)[layer].id == document.selectedLayerID.get())
                return Place{layer, document.selectedStrokeIndex->value()};
        }
        return std::nullopt;
    }

    bool hits(Point p) {
        selectStroke(document, p);
        return document.selectedStrokeIndex->has_value();
    }

    const Stroke& stroke(std::size_t index) const {
        return document.layers->front().strokes[index];
    }

    DrawingDocument document;
};

TEST_F(Selection, FindsFreehandStrokesByTheirInfiniteLinesWithinTheGrownBox) {
    add(makeStroke({{0, 0}, {100, 0}, {100, 100}}));
    EXPECT_FALSE(hits({150, 5}));
    EXPECT_TRUE(hits({105, 50}));
    EXPECT_TRUE(hits({105, -9})) << "on the second pair's line, beyond its end";
    EXPECT_FALSE(hits({50, 10})) << "exactly the tolerance away";
    EXPECT_TRUE(hits({50, 9.99}));
    EXPECT_FALSE(hits({50, 50}));
    document.zoom = 2;
    EXPECT_FALSE(hits({50, 6}));
    document.zoom = 0.5;
    EXPECT_TRUE(hits({50, 19}));
}

TEST_F(Selection, FindsAStrokeWhosePointsCoincide) {
    add(makeStroke({{50, 50}, {50, 50}}));
    EXPECT_TRUE(hits({56, 57}));
    EXPECT_FALSE(hits({58, 58}));  // in the grown box, further away than the tolerance
}

TEST_F(Selection, FindsShapesAnywhereInTheirBoxWhoseFarEdgesAreOut) {
    add(makeStroke({{100, 100}, {300, 200}}, 3, Type::rect));
    EXPECT_TRUE(hits({200, 150}));
    EXPECT_TRUE(hits({90, 90}));
    EXPECT_FALSE(hits({310, 150}));
    EXPECT_FALSE(hits({200, 210}));
    add(makeStroke({{400, 100}, {600, 300}}, 3, Type::line));
    EXPECT_TRUE(hits({420, 280}));
}

TEST_F(Selection, PrefersUpperLayersAndOlderStrokesAndSkipsHiddenLayersAndDots) {
    add(makeStroke({{50, 50}}));
    add(makeStroke({{0, 0}, {100, 0}}));
    add(makeStroke({{0, 1}, {100, 1}}));
    document.addLayer();
    add(makeStroke({{0, 0}, {100, 0}}), 1);
    selectStroke(document, {50, 0});
    EXPECT_EQ(selected(), (Place{1, 0}));
    document.toggleLayerVisibility(1);
    selectStroke(document, {50, 0});
    EXPECT_EQ(selected(), (Place{0, 1}));
    EXPECT_FALSE(hits({50, 50}));
}

TEST_F(Selection, DraggingMovesEveryPointByTheWholeWayAndIsOneUndoStep) {
    add(makeStroke({{0.1, 0.2}, {100.3, 0.4}}));
    selectStroke(document, {50, 0});
    beginSelectDrag(document);
    for (int i = 0; i < 1000; ++i)
        updateSelectDrag(document, {i * 0.1, -i * 0.3});
    updateSelectDrag(document, {30, -10});
    EXPECT_EQ(stroke(0).points, (PointList{{0.1 + 30, 0.2 - 10}, {100.3 + 30, 0.4 - 10}}));
    updateSelectDrag(document, {0, 0});
    EXPECT_EQ(stroke(0).points, (PointList{{0.1, 0.2}, {100.3, 0.4}}));
    updateSelectDrag(document, {5, 5});
    endSelectDrag(document);
    EXPECT_FALSE(document.selectionDragStartPositions->has_value());
    EXPECT_TRUE(document.selectedStrokeIndex->has_value());
    document.undo();
    EXPECT_EQ(stroke(0).points, (PointList{{0.1, 0.2}, {100.3, 0.4}}));
    EXPECT_FALSE(document.canUndo());
}

TEST_F(Selection, OutlineHasAMarginAtAnyZoomAndOnHiddenLayers) {
    add(makeStroke({{10, 20}, {30, 60}}, 50));
    EXPECT_FALSE(selectedStrokeBoundingRect(document));
    selectStroke(document, {20, 40});
    document.zoom = 3;
    document.toggleLayerVisibility(0);
    EXPECT_EQ(selectedStrokeBoundingRect(document), (Rect{{4, 14}, {32, 52}}));
}

TEST_F(Selection, DeletingTakesOneStrokeAndTheSelection) {
    add(makeStroke({{0, 0}, {100, 0}}));
    add(makeStroke({{0, 50}, {100, 50}}));
    selectStroke(document, {50, 0});
    using P = DocumentProperty;
    std::vector<P> published;
    Reader reader(document.changeRegistry(), [&](P property) { published.push_back(property); });
    reader.observe([&] {
        (void)selectedStroke(document), (void)document.canUndo(), (void)document.canRedo();
    });
    deleteSelectedStroke(document);
    EXPECT_EQ(published, (std::vector{P::undoStack, P::redoStack, P::layers, P::selectedStrokeIndex,
                                      P::selectedLayerID}));
    EXPECT_EQ(document.layers->front().strokes.size(), 1u);
    EXPECT_EQ(stroke(0).points[0], (Point{0, 50}));
    EXPECT_FALSE(document.selectedLayerID->has_value());
    EXPECT_FALSE(document.selectedStrokeIndex->has_value());
    document.undo();
    EXPECT_EQ(document.layers->front().strokes.size(), 2u);
}

TEST_F(Selection, AnIndexWithoutAStrokeIsNoSelectionInAnyOperation) {
    add(makeStroke({{0, 0}, {100, 0}}));
    const StrokeList before = document.layers->front().strokes;
    const std::vector<void (*)(DrawingDocument&)> operations{beginSelectDrag,
                                                             [](DrawingDocument& d) {
                                                                 updateSelectDrag(d, {5, 5});
                                                             },
                                                             deleteSelectedStroke};
    for (const std::int64_t index :
         {std::int64_t{-1}, std::int64_t{1}, std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max()}) {
        for (const bool isMoving : {false, true}) {
            for (const auto& operation : operations) {
                document.selectedLayerID = document.layers->front().id;
                document.selectedStrokeIndex = index;
                if (isMoving) document.selectionDragStartPositions = before[0].points;
                EXPECT_FALSE(selectedStrokeBoundingRect(document));
                operation(document);
                EXPECT_TRUE(document.layers->front().strokes.sharesWith(before)) << index;
                EXPECT_FALSE(document.canUndo()) << index;
                EXPECT_EQ(document.selectedStrokeIndex.get(), index)
                    << "only a hit test replaces it";
                EXPECT_EQ(document.selectionDragStartPositions->has_value(), isMoving) << index;
                endSelectDrag(document);
            }
        }
    }
}

TEST_F(Selection, AStrokeWhoseNumberOfPointsHasChangedIsNotMoved) {
    add(makeStroke({{0, 0}, {100, 0}}));
    selectStroke(document, {50, 0});
    beginSelectDrag(document);
    const PointList longer{{0, 0}, {100, 0}, {200, 0}};
    document.layers.modifyAndPublish(
        [&](LayerList& all) { all[0].strokes.replace(0, makeStroke(longer)); });
    updateSelectDrag(document, {5, 5});
    EXPECT_EQ(stroke(0).points, longer);
}

}  // namespace
