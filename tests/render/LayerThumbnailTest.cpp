#include "render/LayerThumbnail.h"

#include "model/DrawingDocument.h"
#include "model/ImageCache.h"
#include "platform/BackgroundThread.h"
#include "render/RasterCompositing.h"
#include "tests/support/Drawing.h"
#include "tests/support/FakeImageCodec.h"
#include "tests/support/ManualQueue.h"

#include <gtest/gtest.h>

#include <thread>

using namespace marlevo;

namespace {

class LayerThumbnailTest : public testing::Test {
protected:
    LayerThumbnailTest() : document(services(backgroundQueue)) { document.ensureLayers(); }

    Services services(BackgroundQueue& background) {
        Services all;
        all.mainQueue = &mainQueue;
        all.imageCodec = &codec;
        all.backgroundQueue = &background;
        return all;
    }

    static void draw(DrawingDocument& on, Point at) {
        addStroke(on, makeStroke({at, {at.x + 200, at.y}}, 60));
    }

    const Layer& layer(std::size_t index = 0) const { return (*document.layers)[index]; }

    /// Runs both queues until they are empty.
    void settle() {
        while (backgroundQueue.run() || mainQueue.run()) {
        }
    }

    CountingImageCodec codec;
    ManualMainQueue mainQueue;
    ManualBackgroundQueue backgroundQueue;
    ImageCache images{&codec};
    DrawingDocument document;
    int changes = 0;
    LayerThumbnail thumbnail{document.services(), images, [this] { ++changes; }};
};

TEST_F(LayerThumbnailTest, ShowsNothingUntilTheRenderIsBack) {
    draw(document, {100, 360});
    document.toggleLayerVisibility(0);
    thumbnail.show(layer(), document.canvasSize);
    backgroundQueue.run();
    EXPECT_FALSE(thumbnail.cgImage());
    mainQueue.run();
    ASSERT_TRUE(thumbnail.cgImage());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(thumbnail.cgImage()->width(), 88);
    EXPECT_EQ(thumbnail.cgImage()->height(), 64);
    EXPECT_EQ(*thumbnail.cgImage(), renderSingleLayer(document, layer(), {88, 64}));
}

TEST_F(LayerThumbnailTest, RendersAgainOnlyWhenThePictureWouldDiffer) {
    thumbnail.show(layer(), document.canvasSize);
    settle();
    const auto rendersAfter = [&](auto change) {
        change();
        thumbnail.show(layer(), document.canvasSize);
        const std::size_t renders = backgroundQueue.size();
        settle();
        return renders;
    };
    EXPECT_EQ(rendersAfter([] {}), 0);
    EXPECT_EQ(rendersAfter([&] { document.toggleLayerVisibility(0); }), 0);
    const auto changeLayer = [&](void (*change)(Layer&)) {
        return rendersAfter([&] {
            document.layers.modifyAndPublish([&](LayerList& layers) { change(layers[0]); });
        });
    };
    EXPECT_EQ(changeLayer([](Layer& layer) { layer.name = "Sky"; }), 0);
    EXPECT_EQ(rendersAfter([&] { draw(document, {0, 0}); }), 1);
    EXPECT_EQ(rendersAfter([&] { document.canvasSize = CanvasSize{300, 300}; }), 1);
    EXPECT_EQ(changeLayer([](Layer& layer) { layer.imageData = Bytes({1, 1, 255, 0, 0, 0}); }), 1);
    EXPECT_EQ(changeLayer([](Layer& layer) { layer.opacity = 0.5; }), 1);
    EXPECT_EQ(*thumbnail.cgImage(), renderSingleLayer(document, layer(), {88, 64}));
}

TEST_F(LayerThumbnailTest, ChangesDuringARenderMakeOneMore) {
    thumbnail.show(layer(), document.canvasSize);
    for (double y = 100; y < 700; y += 100) {
        draw(document, {100, y});
        thumbnail.show(layer(), document.canvasSize);
        EXPECT_EQ(backgroundQueue.size(), 1);
    }
    backgroundQueue.run();
    mainQueue.run();
    EXPECT_EQ(backgroundQueue.size(), 1);
    settle();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(*thumbnail.cgImage(), renderSingleLayer(document, layer(), {88, 64}));
}

TEST_F(LayerThumbnailTest, MayGoAwayDuringARender) {
    auto gone =
        std::make_unique<LayerThumbnail>(document.services(), images, [this] { ++changes; });
    gone->show(layer(), document.canvasSize);
    backgroundQueue.run();
    gone.reset();
    mainQueue.run();
    EXPECT_EQ(changes, 0);

    document.layers = LayerList{imageLayer({1, 1, 255, 0, 0, 0})};
    gone = std::make_unique<LayerThumbnail>(document.services(), images, [this] { ++changes; });
    gone->show(layer(), document.canvasSize);
    gone.reset();
    backgroundQueue.run();
    EXPECT_EQ(codec.decoded, 0) << "nothing is rendered for a thumbnail that is gone";
    EXPECT_FALSE(mainQueue.run());
}

TEST_F(LayerThumbnailTest, RendersWhileTheLayerIsDrawnOn) {
    BackgroundThread thread;
    DrawingDocument busy(services(thread));
    busy.ensureLayers();
    LayerThumbnail shown(busy.services(), images, {});
    for (int i = 0; i < 300; ++i) {
        draw(busy, {4.0 * i, 2.0 * i});
        shown.show((*busy.layers)[0], busy.canvasSize);
        mainQueue.run();
        if (i % 50 == 49) busy.undo();
    }
    const auto wanted = renderSingleLayer(busy, (*busy.layers)[0], {88, 64});
    while (shown.cgImage() != wanted) {
        shown.show((*busy.layers)[0], busy.canvasSize);
        mainQueue.run();
        std::this_thread::yield();
    }
}

}  // namespace
