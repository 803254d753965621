#include "model/DrawingDocument.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace marlevo;

namespace {

using testing::ElementsAre;
using P = DocumentProperty;

constexpr std::int64_t huge = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t hugeNegative = std::numeric_limits<std::int64_t>::min();

class LayerOperations : public testing::Test {
protected:
    LayerOperations()
        : reader(doc.changeRegistry(), [this](P property) { published.push_back(property); }) {
        doc.ensureLayers();
        reader.observe([&] {
            (void)*doc.layers, (void)*doc.activeLayerIndex, (void)*doc.selectedLayerID;
            (void)*doc.selectedStrokeIndex, (void)doc.canUndo(), (void)doc.canRedo();
        });
    }

    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const Layer& layer : *doc.layers)
            all.push_back(layer.name);
        return all;
    }
    void draw(std::int64_t layer) {
        Stroke stroke;
        stroke.points = {{0, 0}, {1, 1}};
        doc.layers.modifyAndPublish([&](LayerList& all) { all[layer].strokes.append(stroke); });
        published.clear();
    }
    std::size_t strokes(std::size_t layer) const { return (*doc.layers)[layer].strokes.size(); }
    void select() {
        doc.selectedLayerID = doc.layers->front().id;
        doc.selectedStrokeIndex = 0;
        published.clear();
    }

    DrawingDocument doc;
    std::vector<P> published;
    Reader reader;
};

TEST_F(LayerOperations, EnsureLayersActsOnlyOnAnEmptyList) {
    EXPECT_THAT(names(), ElementsAre("Background"));
    doc.activeLayerIndex = 5;
    published.clear();
    doc.ensureLayers();
    EXPECT_TRUE(published.empty());
    EXPECT_EQ(doc.activeLayer(), nullptr);
    doc.activeLayerIndex = -1;
    EXPECT_EQ(doc.activeLayer(), nullptr);

    doc.layers = LayerList();
    published.clear();
    doc.ensureLayers();
    EXPECT_THAT(published, ElementsAre(P::layers, P::activeLayerIndex));
    EXPECT_EQ(doc.activeLayer(), &doc.layers->front());
}

TEST_F(LayerOperations, AddingNamesByTheNumberPresent) {
    doc.addLayer();
    EXPECT_THAT(published, ElementsAre(P::undoStack, P::redoStack, P::layers, P::activeLayerIndex));
    doc.addLayer();
    doc.deleteLayer(1);
    doc.addLayer();
    EXPECT_THAT(names(), ElementsAre("Background", "Layer 3", "Layer 3"));
    EXPECT_EQ(*doc.activeLayerIndex, 2);
    EXPECT_FALSE((*doc.layers)[1].id == (*doc.layers)[2].id);
}

TEST_F(LayerOperations, DeletingClampsTheActiveIndexAndKeepsTheLastLayer) {
    doc.deleteLayer(0);
    EXPECT_TRUE(published.empty());
    doc.addLayer();
    doc.addLayer();
    for (const std::int64_t index : {std::int64_t{-1}, std::int64_t{3}, huge, hugeNegative}) {
        published.clear();
        doc.deleteLayer(index);
        EXPECT_TRUE(published.empty());
    }
    doc.deleteLayer(0);
    EXPECT_THAT(names(), ElementsAre("Layer 2", "Layer 3"));
    EXPECT_EQ(*doc.activeLayerIndex, 1);
    doc.activeLayerIndex = -4;
    doc.deleteLayer(0);
    EXPECT_EQ(*doc.activeLayerIndex, -4);
}

TEST_F(LayerOperations, MovingEndsAtTheIndexAndActivates) {
    doc.addLayer();
    doc.addLayer();
    doc.activeLayerIndex = 1;
    published.clear();
    doc.moveLayer(0, 2);
    EXPECT_THAT(names(), ElementsAre("Layer 2", "Layer 3", "Background"));
    EXPECT_THAT(published,
                ElementsAre(P::undoStack, P::redoStack, P::layers, P::layers, P::activeLayerIndex));
    doc.moveLayer(2, 1);
    EXPECT_THAT(names(), ElementsAre("Layer 2", "Background", "Layer 3"));
    EXPECT_EQ(*doc.activeLayerIndex, 1);

    published.clear();
    doc.moveLayer(1, 1);
    EXPECT_THAT(published, ElementsAre(P::undoStack, P::redoStack, P::layers, P::layers));
    EXPECT_THAT(names(), ElementsAre("Layer 2", "Background", "Layer 3"));

    published.clear();
    doc.moveLayer(0, 3);
    doc.moveLayer(-1, 0);
    doc.moveLayer(huge, hugeNegative);
    EXPECT_TRUE(published.empty());
}

TEST_F(LayerOperations, HidingTakesNoSnapshotButUndoRestoresVisibility) {
    doc.saveState();
    draw(0);
    doc.toggleLayerVisibility(0);
    EXPECT_THAT(published, ElementsAre(P::layers));
    EXPECT_FALSE(doc.activeLayer()->isVisible);
    doc.undo();
    EXPECT_TRUE(doc.activeLayer()->isVisible);
    EXPECT_EQ(strokes(0), 0u);
    published.clear();
    doc.toggleLayerVisibility(-1);
    doc.toggleLayerVisibility(1);
    EXPECT_TRUE(published.empty());
}

TEST_F(LayerOperations, ClearingNeedsStrokesAndKeepsTheImage) {
    doc.layers.modifyAndPublish([](LayerList& all) { all[0].imageData = Bytes({1, 2}); });
    select();
    doc.clearActiveLayer();
    doc.clearAll();
    EXPECT_TRUE(published.empty());

    draw(0);
    doc.clearActiveLayer();
    EXPECT_THAT(published, ElementsAre(P::undoStack, P::redoStack, P::layers, P::selectedLayerID,
                                       P::selectedStrokeIndex));
    EXPECT_EQ(strokes(0), 0u);
    EXPECT_EQ(doc.activeLayer()->imageData, Bytes({1, 2}));

    doc.addLayer();
    draw(0);
    doc.clearActiveLayer();
    EXPECT_TRUE(published.empty());
    select();
    doc.clearAll();
    EXPECT_THAT(published, ElementsAre(P::undoStack, P::redoStack, P::layers, P::layers,
                                       P::selectedLayerID, P::selectedStrokeIndex));
    EXPECT_EQ(strokes(0), 0u);
}

TEST_F(LayerOperations, UndoAndRedoWalkThroughEveryState) {
    constexpr std::size_t steps = 200;
    doc.undo();
    doc.redo();
    EXPECT_TRUE(published.empty());
    for (std::size_t i = 0; i < steps; ++i) {
        doc.saveState();
        draw(0);
    }
    for (std::size_t i = steps; i-- > 0;) {
        doc.undo();
        ASSERT_EQ(strokes(0), i);
    }
    EXPECT_FALSE(doc.canUndo());
    for (std::size_t i = 1; i <= steps; ++i) {
        doc.redo();
        ASSERT_EQ(strokes(0), i);
    }
    EXPECT_FALSE(doc.canRedo());

    doc.undo();
    doc.saveState();
    EXPECT_FALSE(doc.canRedo());
}

TEST_F(LayerOperations, UndoAndRedoPublishInOrderAndOnlyClampFromAbove) {
    doc.addLayer();
    select();
    doc.undo();
    EXPECT_THAT(published, ElementsAre(P::redoStack, P::undoStack, P::layers, P::activeLayerIndex));
    EXPECT_EQ(*doc.activeLayerIndex, 0);
    EXPECT_TRUE(doc.selectedStrokeIndex->has_value());
    published.clear();
    doc.redo();
    EXPECT_THAT(published, ElementsAre(P::undoStack, P::redoStack, P::layers));
    EXPECT_EQ(*doc.activeLayerIndex, 0);

    doc.layers = LayerList();
    doc.saveState();
    doc.ensureLayers();
    doc.undo();
    EXPECT_EQ(*doc.activeLayerIndex, -1);
}

TEST(LayerList, SharesTheLayersThatDidNotChange) {
    LayerList layers{Layer("a"), Layer("b"), Layer("c")};
    const LayerList snapshot = layers;
    layers[1].name = "changed";
    const Layer* const own = &layers[1];
    layers[1].opacity = 0.5;
    EXPECT_EQ(own, &layers[1]);
    EXPECT_EQ(snapshot[1].name, "b");
    EXPECT_TRUE(snapshot[1].id == std::as_const(layers)[1].id);
    layers.erase(0);
    layers.insert(1, Layer("new"));
    EXPECT_EQ(&std::as_const(layers).back(), &snapshot.back());
    std::vector<std::string> names;
    for (const Layer& layer : layers)
        names.push_back(layer.name);
    EXPECT_THAT(names, ElementsAre("changed", "new", "c"));
    EXPECT_EQ(snapshot.size(), 3u);
}

}  // namespace
