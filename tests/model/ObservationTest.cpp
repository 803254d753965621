#include "model/Observation.h"

#include "model/DrawingDocument.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <vector>

using namespace marlevo;

namespace {

using testing::ElementsAre;
using P = DocumentProperty;

/// Records the properties that its reader is called with.
class Listener {
public:
    explicit Listener(ChangeRegistry& registry)
        : reader(registry, [this](P property) { calls.push_back(property); }) {}

    std::vector<P> calls;
    Reader reader;
};

TEST(Observation, PublishesDifferencesOnlyWhereThereIsEquality) {
    DrawingDocument doc;
    doc.ensureLayers();
    Listener listener(doc.changeRegistry());
    listener.reader.observe([&] {
        (void)*doc.layers, (void)*doc.currentStroke, (void)*doc.lineWidth;
        (void)*doc.selectedColor, (void)*doc.selectedStrokeIndex, (void)*doc.canvasSize;
        (void)*doc.selectionDragStartPositions;
    });

    doc.lineWidth = 3.0;
    doc.selectedColor = Color{-0.0, 0, 0, 1};
    doc.selectedStrokeIndex = std::nullopt;
    doc.canvasSize = CanvasSize{1280, 720};
    EXPECT_TRUE(listener.calls.empty());

    doc.lineWidth = 4.0;
    doc.selectedStrokeIndex = 0;
    doc.selectedStrokeIndex = 0;
    doc.selectionDragStartPositions = PointList{{1, 1}};
    doc.selectionDragStartPositions = PointList{{1, 1}};
    EXPECT_THAT(listener.calls,
                ElementsAre(P::lineWidth, P::selectedStrokeIndex, P::selectionDragStartPositions));

    listener.calls.clear();
    doc.layers = *doc.layers;
    doc.currentStroke = std::nullopt;
    doc.layers.modifyAndPublish([](LayerList&) {});
    EXPECT_THAT(listener.calls, ElementsAre(P::layers, P::currentStroke, P::layers));
}

TEST(Observation, CallsOnlyReadersThatReadTheProperty) {
    DrawingDocument doc;
    double seen = 0;
    Reader zoomReader(doc.changeRegistry(), [&](P) { seen = *doc.zoom; });
    Listener other(doc.changeRegistry());
    zoomReader.observe([&] {
        (void)*doc.zoom;
        // The reads of a nested reader are not those of the outer one.
        other.reader.observe([&] { return *doc.showGrid; });
        return doc.isDrawingMode();
    });
    doc.zoom = 2.0;
    EXPECT_EQ(seen, 2.0);
    EXPECT_TRUE(other.calls.empty());
    doc.showGrid = true;
    EXPECT_THAT(other.calls, ElementsAre(P::showGrid));
    seen = 0;
    doc.isEraser = true;
    EXPECT_EQ(seen, 2.0) << "read after the nested reader";

    // A new call of observe() replaces the properties of the last one.
    zoomReader.observe([&] { return *doc.lineWidth; });
    doc.zoom = 3.0;
    EXPECT_EQ(seen, 2.0);
}

TEST(Observation, DerivedReadingsDependOnWhatTheyExamined) {
    DrawingDocument doc;
    doc.ensureLayers();
    doc.isFillTool = true;
    Listener mode(doc.changeRegistry());
    mode.reader.observe([&] { return doc.isDrawingMode(); });
    doc.isShapeTool = true;
    EXPECT_TRUE(mode.calls.empty());
    doc.isEraser = true;
    EXPECT_THAT(mode.calls, ElementsAre(P::isEraser));

    Listener layer(doc.changeRegistry());
    layer.reader.observe([&] { return doc.activeLayer(); });
    doc.activeLayerIndex = 5;
    doc.toggleLayerVisibility(0);
    EXPECT_THAT(layer.calls, ElementsAre(P::activeLayerIndex, P::layers));

    Listener history(doc.changeRegistry());
    history.reader.observe([&] { return doc.canUndo() || doc.canRedo(); });
    doc.saveState();
    EXPECT_THAT(history.calls, ElementsAre(P::undoStack, P::redoStack));
}

TEST(Observation, ReadersMayBeDestroyedCreatedAndObserveAnewDuringACall) {
    ChangeRegistry registry;
    const auto dependOn = [&](Reader& reader, P property) {
        reader.observe([&] { registry.noteRead(property); });
    };
    std::vector<int> calls;
    std::vector<std::unique_ptr<Reader>> readers(5);
    for (int i = 0; i < 5; ++i) {
        readers[i] = std::make_unique<Reader>(registry, [&, i](P) {
            calls.push_back(i);
            if (i != 3) return;
            // During its call it and both neighbours are destroyed, and another reader is created.
            readers[2].reset();
            readers[4].reset();
            readers[3].reset();
            readers[4] = std::make_unique<Reader>(registry, [&](P) { calls.push_back(40); });
            dependOn(*readers[4], P::zoom);
            dependOn(*readers[1], P::showGrid);
            calls.push_back(i);
        });
        dependOn(*readers[i], P::zoom);
    }
    registry.publish(P::zoom);
    EXPECT_THAT(calls, ElementsAre(4, 3, 3, 0));
    calls.clear();
    registry.publish(P::zoom);
    EXPECT_THAT(calls, ElementsAre(40, 0));
    calls.clear();
    registry.publish(P::showGrid);
    EXPECT_THAT(calls, ElementsAre(1));
}

TEST(Observation, ReadersMayBeDestroyedDuringANestedPublish) {
    ChangeRegistry registry;
    std::vector<int> calls;
    auto last = std::make_unique<Reader>(registry, [&](P) { calls.push_back(0); });
    Reader inner(registry, [&](P property) {
        calls.push_back(1);
        if (property == P::showGrid) last.reset();
    });
    Reader outer(registry, [&](P property) {
        calls.push_back(2);
        if (property == P::zoom) registry.publish(P::showGrid);
    });
    const auto both = [&] { registry.noteRead(P::zoom), registry.noteRead(P::showGrid); };
    last->observe(both);
    inner.observe(both);
    outer.observe(both);
    registry.publish(P::zoom);
    EXPECT_THAT(calls, ElementsAre(2, 2, 1, 1));
}

TEST(Observation, AReaderMayOutliveItsDocument) {
    auto doc = std::make_unique<DrawingDocument>();
    Listener listener(doc->changeRegistry());
    listener.reader.observe([&] { return *doc->zoom; });
    doc.reset();
    listener.reader.observe([] {});
    EXPECT_TRUE(listener.calls.empty());
}

}  // namespace
