#include "render/ScreenPicture.h"

#include "model/DrawingDocument.h"
#include "model/ImageCache.h"
#include "render/RasterCompositing.h"
#include "tests/render/FailingAllocation.h"
#include "tests/support/Canvas.h"
#include "tests/support/Drawing.h"
#include "tests/support/FakeImageCodec.h"
#include "tests/support/OtherThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <random>
#include <thread>
#include <vector>

using namespace marlevo;

namespace {

/// Has no codec: the pictures here have no images.
ImageCache noImages(nullptr);

std::vector<std::uint8_t> paint(ScreenPicture& picture, const Scene& scene, const IntRect& area) {
    Canvas canvas(area, PixelOrder::bgra, 0xAB);
    picture.update(scene);
    picture.paint(canvas.buffer());
    return canvas.bytes();
}

/// A view that repaints only the damage of its picture.
class View {
public:
    explicit View(const IntRect& area) : area_(area), canvas_(area, PixelOrder::bgra) {}

    void showChanges(const Scene& scene) {
        picture_.update(scene);
        if (const auto damage = picture_.takeDamage()) {
            for (const IntRect& area : *damage)
                paintPart(scene, area.intersectedWith(area_));
        } else {
            paintPart(scene, area_);
        }
    }

    void paintPart(const Scene& scene, const IntRect& part) {
        if (part.isEmpty()) return;
        picture_.update(scene);
        picture_.paint(canvas_.part(part));
    }

    ScreenPicture& picture() { return picture_; }
    const std::vector<std::uint8_t>& pixels() const { return canvas_.bytes(); }

private:
    IntRect area_;
    Canvas canvas_;
    ScreenPicture picture_{noImages};
};

void extendCurrentStroke(DrawingDocument& document, Point to) {
    document.currentStroke.modifyAndPublish([&](std::optional<Stroke>& stroke) {
        if (stroke->shapeType == Stroke::ShapeType::freehand)
            stroke->points.append(to);
        else
            stroke->points = {stroke->points[0], to};
    });
}

/// Publishes a state in which the stroke exists twice, as ending a stroke with the pointer does.
void endCurrentStroke(DrawingDocument& document) {
    if (document.currentStroke.get()->points.size() >= 2 && document.activeLayer()) {
        addStroke(document, *document.currentStroke.get(), *document.activeLayerIndex);
    }
    document.currentStroke = std::nullopt;
}

/// Changes a document in all ways that its picture may change.
class RandomEditor {
public:
    explicit RandomEditor(unsigned seed) : random_(seed) {
        document.canvasSize = CanvasSize{700, 500};
        document.ensureLayers();
    }

    DrawingDocument document;

    int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

    /// Moves the dragged stroke, if there is one.
    void drag() {
        if (!document.selectionDragStartPositions->has_value()) return;
        document.layers.modifyAndPublish([&](LayerList& all) {
            StrokeList& strokes = all[below(static_cast<int>(all.size()))].strokes;
            if (strokes.isEmpty()) return;
            strokes.modify(below(static_cast<int>(strokes.size())),
                           [&](Stroke& stroke) { stroke.points.append(anywhere()); });
        });
    }

    void change() {
        const int layer = below(static_cast<int>(document.layers->size()));
        switch (below(22)) {
        case 0:
            return document.addLayer();
        case 1:
            return document.deleteLayer(layer);
        case 2:
            return document.moveLayer(layer, below(static_cast<int>(document.layers->size())));
        case 3:
            return document.toggleLayerVisibility(layer);
        case 4:
            return document.undo();
        case 5:
            return document.redo();
        case 6:
            document.showGrid = !document.showGrid;
            return;
        case 7:
            if (below(10) == 0) document.clearActiveLayer();
            return;
        case 8:
            document.activeLayerIndex = layer;
            return;
        case 9:
        case 10:
        case 11:
        case 12:
            return draw();
        case 13:
            document.saveState();
            document.selectionDragStartPositions = PointList();
            return drag();
        case 14:
            document.selectionDragStartPositions = std::nullopt;
            return;
        default:
            return changeStrokes(layer);
        }
    }

    Point anywhere() { return {below(7200) / 10.0 - 10, below(5200) / 10.0 - 10}; }

private:
    void draw() {
        if (!document.currentStroke->has_value()) {
            document.saveState();
            Stroke stroke = makeStroke({anywhere()}, 1 + below(40));
            stroke.opacity = below(2) == 0 ? 1 : 0.5;
            if (below(3) == 0) stroke.color = document.backgroundColor;
            if (below(4) == 0) stroke.shapeType = Stroke::allShapeTypes[below(4)];
            document.currentStroke = std::move(stroke);
        }
        for (int n = below(4); n > 0; --n)
            extendCurrentStroke(document, anywhere());
        if (below(3) == 0) endCurrentStroke(document);
    }

    void changeStrokes(int layer) {
        document.saveState();
        std::vector<Point> points;
        for (int n = 2 + below(5); n > 0; --n)
            points.push_back(anywhere());
        Stroke stroke =
            makeStroke(PointList(std::move(points)), below(40), Stroke::allShapeTypes[below(4)]);
        stroke.opacity = 0.6;
        stroke.isFill = below(4) == 0;
        document.layers.modifyAndPublish([&](LayerList& all) {
            StrokeList& strokes = all[layer].strokes;
            const int at = below(static_cast<int>(strokes.size()) + 3);
            if (at >= static_cast<int>(strokes.size()))
                strokes.append(stroke);
            else if (below(2) == 0)
                strokes.replace(at, stroke);
            else
                strokes.erase(at);
        });
    }

    std::mt19937 random_;
};

TEST(ScreenPicture, RepaintingTheDifferenceEqualsPaintingAnew) {
    constexpr std::size_t bytesOfCell = std::size_t{64} * 64 * 4 + 100;
    for (const std::size_t keptCells : {8, 100, 4000}) {
        RandomEditor editor(11);
        ScreenPicture kept(noImages, {.keptBytes = keptCells * bytesOfCell});
        int checks = 0;
        const auto check = [&](double scale) {
            const IntRect area{editor.below(300), editor.below(200), 350 + editor.below(350),
                               250 + editor.below(250)};
            ScreenPicture fresh(noImages);
            const Scene scene = sceneOf(editor.document, scale);
            ASSERT_EQ(paint(kept, scene, area), paint(fresh, scene, area)) << checks;
            ASSERT_LE(kept.keptBytes(), keptCells * bytesOfCell) << checks;
            ++checks;
        };
        for (int step = 0; step < 130; ++step) {
            // Towards the end the scale changes at each step, and the picture at some steps.
            const bool isZooming = step >= 90;
            if (!isZooming || editor.below(4) == 0) editor.change();
            editor.drag();
            const double scale = isZooming ? 0.5 + 0.5 * editor.below(3) : 1;
            ASSERT_NO_FATAL_FAILURE(check(scale));
            if (editor.below(6) != 0) continue;
            for (int back = editor.below(8); back >= 0; --back) {
                editor.document.undo();
                ASSERT_NO_FATAL_FAILURE(check(scale));
            }
            for (int forth = editor.below(8); forth >= 0; --forth) {
                editor.document.redo();
                ASSERT_NO_FATAL_FAILURE(check(scale));
            }
        }
        // Each way to get a cell's pixels was taken.
        const PictureTiles::Counts& counts = kept.counts();
        for (const std::size_t count : {counts.samePicture, counts.sameInCell, counts.drawnOverKept,
                                        counts.drawnOver, counts.repainted})
            EXPECT_GT(count, 0U);
    }
}

TEST(ScreenPicture, RepaintingTheDamageShowsThePicture) {
    RandomEditor editor(12);
    const IntRect area{0, 0, 700, 500};
    View view(area);
    for (int step = 0; step < 280; ++step) {
        // Towards the end the scale changes at most steps, and the picture at some steps.
        const bool isZooming = step >= 160;
        for (int changes = editor.below(3) - (isZooming ? 1 : 0); changes >= 0; --changes)
            editor.change();
        const double scale = isZooming ? 0.5 + 0.5 * editor.below(3) : 1;
        // The window system may ask for a part before the damage is taken.
        const Scene scene = sceneOf(editor.document, scale);
        const int left = editor.below(300);
        const int top = editor.below(200);
        if (editor.below(2) == 0) view.paintPart(scene, {left, top, left + 350, top + 200});
        if (editor.below(50) == 0) view.picture().releaseMemory();
        view.showChanges(scene);
        ScreenPicture fresh(noImages);
        ASSERT_EQ(view.pixels(), paint(fresh, scene, area)) << step;
    }
}

TEST(ScreenPicture, DamageIsSmallAfterASmallChange) {
    DrawingDocument document;
    document.canvasSize = CanvasSize{2000, 1000};
    document.ensureLayers();
    ScreenPicture picture(noImages);
    paint(picture, sceneOf(document, 1), {0, 0, 2000, 1000});
    picture.takeDamage();
    const auto changedPixels = [&] {
        int sum = 0;
        picture.update(sceneOf(document, 1));
        if (const auto damage = picture.takeDamage()) {
            for (const IntRect& area : *damage)
                sum += area.width() * area.height();
        } else {
            ADD_FAILURE() << "everything changed";
        }
        return sum;
    };

    document.saveState();
    document.currentStroke = makeStroke({{100, 100}}, 3);
    for (int i = 1; i < 50; ++i)
        extendCurrentStroke(document, {100.0 + 30 * i, 100.0 + 15 * i});
    changedPixels();
    extendCurrentStroke(document, {1610, 850});
    EXPECT_LT(changedPixels(), 80 * 60);
    endCurrentStroke(document);
    EXPECT_EQ(changedPixels(), 0);  // the stroke looks as before
    document.lineWidth = 9;
    EXPECT_EQ(changedPixels(), 0);
    document.undo();
    EXPECT_GT(changedPixels(), 0);
    document.redo();
    // A few of the cells in its bounds, which are 1510 × 750 pixels large.
    EXPECT_LT(changedPixels(), 1510 * 750 / 4);
}

/// No undo returns to a moment of a drag.
TEST(ScreenPicture, ADragKeepsThePixelsFromItsStartOnly) {
    const IntRect area{0, 0, 640, 640};
    constexpr std::size_t bytesOfCell = std::size_t{64} * 64 * 4 + 100;
    constexpr std::size_t last = 59;
    Layer layer("Layer");
    for (std::size_t i = 0; i <= last; ++i)
        layer.strokes.append(makeStroke({{10.0 * i, 5}, {640 - 10.0 * i, 630}}, 4));
    for (const std::size_t dragged : {std::size_t{30}, last}) {
        Scene scene{{{layer}, {640, 640}, white}, false, 1, nullptr};
        const Scene start = scene;
        ScreenPicture picture(noImages);
        paint(picture, scene, area);
        scene.isPassing = true;
        std::size_t repaintedAtFirst = 0;
        for (int i = 0; i < 200; ++i) {
            scene.picture.layers.back().strokes.modify(dragged, [&](Stroke& stroke) {
                stroke.points = {{3.0 * i, 5}, {3.0 * i, 630}};
            });
            const auto pixels = paint(picture, scene, area);
            if (i == 0) repaintedAtFirst = picture.counts().repainted;
            ScreenPicture fresh(noImages);
            if (i % 20 != 0) continue;
            ASSERT_EQ(pixels, paint(fresh, scene, area)) << i;
        }
        scene.isPassing = false;
        paint(picture, scene, area);
        EXPECT_LE(picture.keptBytes(), 200 * bytesOfCell) << "two versions of each cell";
        const std::size_t repainted = picture.counts().repainted;
        EXPECT_EQ(repainted == repaintedAtFirst, dragged == last) << "on top nothing is repainted";
        ScreenPicture fresh(noImages);
        EXPECT_EQ(paint(picture, start, area), paint(fresh, start, area));
        EXPECT_EQ(picture.counts().repainted, repainted) << "the start is found again";
    }
}

TEST(ScreenPicture, ShowsTheExportedPictureAtScaleOne) {
    DrawingDocument document;
    document.canvasSize = CanvasSize{300, 200};
    document.layers =
        LayerList{imageLayer({2, 2, 255, 255, 0, 0, 128, 0, 64, 0, 255, 0, 9, 255, 0, 0, 0, 0})};
    for (const auto type : {Stroke::ShapeType::freehand, Stroke::ShapeType::rect}) {
        Stroke stroke = makeStroke({{-20, 40}, {150.25, 30.5}, {320, 150.75}}, 5, type);
        stroke.opacity = 0.5;
        addStroke(document, stroke);
    }
    const FakeImageCodec codec;
    ImageCache images(&codec);
    ScreenPicture picture(images);
    const auto shown = paint(picture, sceneOf(document, 1), {0, 0, 300, 200});
    const auto exported = renderPicture(pictureOf(document), images);
    for (std::size_t at = 0; at < shown.size(); ++at)
        ASSERT_EQ(shown[at], exported->bytes()[at ^ 3]) << at;  // in the opposite order
}

TEST(ScreenPicture, SharesARepaintAmongThreads) {
    if (std::thread::hardware_concurrency() < 2) GTEST_SKIP() << "one core";
    RandomEditor random(13);
    Layer layer("Strokes");
    for (int i = 0; i < 2000; ++i)
        layer.strokes.append(makeStroke({random.anywhere(), random.anywhere()}, 9));
    const Scene scene{{{layer}, {500, 500}, white}, false, 1, nullptr};
    ScreenPicture picture(noImages);
    EXPECT_TRUE(usesOtherThreads([&] {
        picture.releaseMemory();
        paint(picture, scene, {0, 0, 500, 500});  // one tile
    }));
    ImageCache images(nullptr);
    EXPECT_TRUE(usesOtherThreads([&] { renderPicture(scene.picture, images); }));
}

TEST(ScreenPicture, KeepsNoMoreTilesThanItsBoundBesidesTheVisibleOnes) {
    Scene scene{{{Layer("Layer")}, {2048, 1024}, white}, false, 1, nullptr};
    constexpr std::size_t tileBytes = std::size_t{512} * 512 * 4;
    ScreenPicture picture(noImages, {.tileBytes = 8 * tileBytes});
    const IntRect all{0, 0, 2048, 1024};
    paint(picture, scene, all);
    picture.evictTiles({});
    EXPECT_EQ(picture.tileBytes(), 8 * tileBytes) << "within the bound nothing is dropped";

    scene.scale = 0.5;
    paint(picture, scene, {0, 0, 1024, 512});
    EXPECT_TRUE(picture.hasTilesToEvict());
    picture.evictTiles({0, 0, 10, 10});
    EXPECT_EQ(picture.tileBytes(), 2 * tileBytes) << "those of the other scale are dropped";

    for (const bool showsGrid : {true, false, true}) {
        scene.showsGrid = showsGrid;
        paint(picture, scene, {0, 0, 1024, 512});
        EXPECT_EQ(picture.tileBytes(), 4 * tileBytes) << "those without the grid stay";
    }
    scene.picture.background = black;
    picture.update(scene);
    EXPECT_EQ(picture.tileBytes(), 2 * tileBytes) << "of other grounds only the last one stays";

    ScreenPicture small(noImages, {.tileBytes = tileBytes});
    scene.scale = 1;
    paint(small, scene, all);
    small.evictTiles({500, 100, 600, 200});
    EXPECT_EQ(small.tileBytes(), 2 * tileBytes) << "the visible tiles stay";
    ScreenPicture fresh(noImages);
    EXPECT_EQ(paint(small, scene, all), paint(fresh, scene, all));
}

TEST(ScreenPicture, APaintThatFailsLeavesNoHalfPaintedTile) {
    /// The first call decodes ahead, before the repaint. The second one is in the middle of it: the
    /// ground is painted, the layers are not.
    struct FailingCodec : FakeImageCodec {
        std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override {
            if (--callsUntilFailure == 0) throw std::bad_alloc();
            return FakeImageCodec::decode(file);
        }
        mutable std::atomic<int> callsUntilFailure = 0;
    };
    const FailingCodec codec;
    // Keeps no image, so that the repaint decodes it again.
    ImageCache images(&codec, 0);
    Layer layer = imageLayer({1, 1, 255, 9, 8, 7});
    layer.strokes.append(makeStroke({{10, 10}, {90, 90}}, 9));
    const Scene scene{{{layer}, {100, 100}, white}, true, 1, nullptr};
    const IntRect area{0, 0, 100, 100};
    ScreenPicture fresh(images);
    const auto expected = paint(fresh, scene, area);

    for (const int failingCall : {1, 2}) {
        ScreenPicture picture(images);
        codec.callsUntilFailure = failingCall;
        EXPECT_THROW(paint(picture, scene, area), std::bad_alloc);
        EXPECT_EQ(paint(picture, scene, area), expected) << failingCall;
    }
}

/// An allocation fails at every possible place of an update.
TEST(ScreenPicture, AnUpdateThatFailsLosesNothing) {
    Layer layer("Layer");
    layer.strokes.append(makeStroke({{10, 10}, {90, 90}}, 9));
    Layer more = layer;
    Stroke added = makeStroke({{10, 90}, {90, 10}, {90, 60}}, 20);
    added.opacity = 0.5;
    more.strokes.append(added);
    Layer less = more;
    less.strokes.erase(0);
    const auto sceneWith = [](const Layer& shown, const Stroke* inProgress) {
        return Scene{{{shown}, {100, 100}, white}, false, 1, inProgress};
    };
    std::vector<Scene> scenes{sceneWith(layer, &added),  sceneWith(more, nullptr),
                              sceneWith(layer, nullptr), sceneWith(more, nullptr),
                              sceneWith(less, nullptr),  sceneWith(more, nullptr)};
    const IntRect area{0, 0, 100, 100};
    bool hasFailed = true;
    for (int successes = 0; hasFailed; ++successes) {
        ScreenPicture picture(noImages);
        paint(picture, sceneWith(layer, nullptr), area);
        hasFailed = false;
        for (const Scene& scene : scenes) {
            try {
                const FailingAllocation failing(successes);
                picture.update(scene);
            } catch (const std::bad_alloc&) {
                hasFailed = true;
            }
            ScreenPicture fresh(noImages);
            ASSERT_EQ(paint(picture, scene, area), paint(fresh, scene, area)) << successes;
        }
    }
}

TEST(ScreenPicture, RepaintsALayerWhoseImageFades) {
    const FakeImageCodec codec;
    ImageCache images(&codec);
    Scene scene{{{imageLayer({1, 1, 255, 9, 8, 7})}, {100, 100}, white}, false, 1, nullptr};
    const IntRect area{0, 0, 100, 100};
    ScreenPicture kept(images);
    const auto opaque = paint(kept, scene, area);
    scene.picture.layers.back().opacity = 0.5;
    const auto faded = paint(kept, scene, area);
    ScreenPicture fresh(images);
    EXPECT_EQ(faded, paint(fresh, scene, area));
    EXPECT_NE(faded, opaque);
}

}  // namespace
