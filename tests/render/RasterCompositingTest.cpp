#include "render/RasterCompositing.h"

#include "graphics/BitmapContext.h"
#include "model/DrawingDocument.h"
#include "render/LayerPainting.h"
#include "tests/support/Drawing.h"
#include "tests/support/FakeImageCodec.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

using namespace marlevo;

namespace {

using testing::ElementsAre;
using Type = Stroke::ShapeType;
using Pixel = std::array<int, 4>;

class RasterCompositing : public testing::Test {
protected:
    RasterCompositing() : document({.imageCodec = &codec}) {
        document.ensureLayers();
        document.canvasSize = CanvasSize{100, 80};
    }

    void add(const Stroke& stroke, std::size_t layer = 0) { addStroke(document, stroke, layer); }

    /// An image layer of `width` × `height` pixels, the upper half in one colour, the lower in
    /// another.
    void addImage(int width, int height, Pixel upper, Pixel lower, double opacity = 1) {
        std::vector<std::uint8_t> file{static_cast<std::uint8_t>(width),
                                       static_cast<std::uint8_t>(height)};
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const Pixel& pixel = y < height / 2 ? upper : lower;
                file.insert(file.end(), pixel.begin(), pixel.end());
            }
        }
        addLayer(document, imageLayer(std::move(file), opacity));
    }

    Pixel pixel(int x, int y) const {
        const auto image = renderCGImage(document);
        const auto bytes = image.value().pixel(x, y);
        return {bytes[0], bytes[1], bytes[2], bytes[3]};
    }

    FakeImageCodec codec;
    DrawingDocument document;
};

constexpr Pixel opaqueWhite{255, 255, 255, 255};
constexpr Pixel opaqueBlack{255, 0, 0, 0};
constexpr Pixel nothing{0, 0, 0, 0};
constexpr Pixel red{255, 255, 0, 0};
constexpr Pixel blue{255, 0, 0, 255};

TEST_F(RasterCompositing, SizesAreTruncatedAndImpossibleOnesGiveNoPicture) {
    document.canvasSize = CanvasSize{100.7, 50.2};
    const auto image = renderCGImage(document);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width(), 100);
    EXPECT_EQ(image->height(), 50);

    const double infinity = std::numeric_limits<double>::infinity();
    for (const CanvasSize size : {CanvasSize{0.5, 100},
                                  {100, 0},
                                  {-5, 10},
                                  {1e300, 10},
                                  {1e9, 1e9},
                                  {std::nan(""), 10},
                                  {10, infinity}}) {
        document.canvasSize = size;
        EXPECT_FALSE(renderCGImage(document)) << size.width << " × " << size.height;
    }
}

TEST_F(RasterCompositing, BackgroundIsPaintedUnlessTransparent) {
    EXPECT_EQ(pixel(0, 0), opaqueWhite);
    document.backgroundColor = Color{1, 0, 0, 0.5};
    EXPECT_EQ(pixel(99, 79), (Pixel{128, 128, 0, 0}));
    document.backgroundIsTransparent = true;
    EXPECT_EQ(pixel(50, 50), nothing);
}

TEST_F(RasterCompositing, StrokesOfOnePointAreSkippedAndHiddenLayersToo) {
    add(makeStroke({{50, 50}}, 20));
    EXPECT_EQ(pixel(50, 50), opaqueWhite);
    add(makeStroke({{50, 50}, {50, 50}}, 20));
    EXPECT_EQ(pixel(50, 50), opaqueBlack);
    document.toggleLayerVisibility(0);
    EXPECT_EQ(pixel(50, 50), opaqueWhite);
    const auto thumbnail = renderSingleLayer(document, document.layers->front(), {100, 80});
    EXPECT_THAT(thumbnail.value().pixel(50, 50), ElementsAre(255, 0, 0, 0));
}

TEST_F(RasterCompositing, StrokesCoverTheirLineAndFillsTheirInside) {
    add(makeStroke({{10, 1}, {50, 1}, {90, 60}}, 4, Type::line));
    EXPECT_EQ(pixel(45, 0), opaqueBlack) << "the top of the canvas is that of the raster";
    EXPECT_EQ(pixel(70, 30), opaqueWhite) << "a line runs to the second point";
    Stroke box = makeStroke({{20, 20}, {60, 60}}, 4, Type::rect);
    add(box);
    EXPECT_EQ(pixel(20, 40), opaqueBlack);
    EXPECT_EQ(pixel(40, 40), opaqueWhite);
    box.isFill = true;
    add(box);
    EXPECT_EQ(pixel(40, 40), opaqueBlack);
    add(makeStroke({{70, 70}, {90, 75}}, 4, Type::ellipse));
    EXPECT_EQ(pixel(80, 70), opaqueBlack);
}

TEST_F(RasterCompositing, ImagesStandUprightUnderTheStrokesOfTheirLayer) {
    addImage(2, 4, red, blue);
    EXPECT_EQ(pixel(50, 10), red);
    EXPECT_EQ(pixel(50, 70), blue);
    add(makeStroke({{10, 70}, {90, 70}}), 1);
    EXPECT_EQ(pixel(50, 70), opaqueBlack);
}

TEST_F(RasterCompositing, LayerOpacityFadesTheImageButNoStroke) {
    addImage(1, 2, opaqueBlack, opaqueBlack, 0.5);
    add(makeStroke({{10, 40}, {90, 40}}, 6), 1);
    EXPECT_EQ(pixel(50, 20), (Pixel{255, 127, 127, 127}));
    EXPECT_EQ(pixel(50, 40), opaqueBlack);
}

TEST_F(RasterCompositing, UndecodableImagesAreSkippedButNotTheirStrokes) {
    document.layers = LayerList{imageLayer({1, 2, 3})};
    add(makeStroke({{10, 40}, {90, 40}}));
    EXPECT_EQ(pixel(50, 40), opaqueBlack);
    EXPECT_EQ(pixel(50, 10), opaqueWhite);
}

TEST_F(RasterCompositing, SingleLayersAreStretchedOverWhite) {
    document.canvasSize = CanvasSize{2000, 500};
    add(makeStroke({{0, 250}, {2000, 250}}, 100));
    const auto image = renderSingleLayer(document, document.layers->front(), {88, 64});
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width(), 88);
    EXPECT_EQ(image->height(), 64);
    EXPECT_THAT(image->pixel(44, 32), ElementsAre(255, 0, 0, 0));
    EXPECT_THAT(image->pixel(44, 27), ElementsAre(255, 0, 0, 0));  // 100 × 0.128 = 12.8 pixels high
    EXPECT_THAT(image->pixel(44, 20), ElementsAre(255, 255, 255, 255));
    EXPECT_FALSE(renderSingleLayer(document, document.layers->front(), {0.9, 64}));

    document.canvasSize = CanvasSize{0, 0};
    EXPECT_TRUE(renderSingleLayer(document, document.layers->front(), {88, 64}));
}

TEST_F(RasterCompositing, PaintedInPartsThePictureHasTheBytesOfOnePaintedAtOnce) {
    std::mt19937 random(5);
    const auto below = [&](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
    document.canvasSize = CanvasSize{330.5, 700.25};
    for (std::size_t layer = 0; layer < 4; ++layer) {
        if (layer == 2)
            addImage(40, 60, {128, 64, 0, 0}, {255, 0, 128, 255}, 0.7);
        else if (layer > 0)
            document.addLayer();
        for (int i = 0; i < 60; ++i) {
            std::vector<Point> points;
            for (int n = 2 + below(5); n > 0; --n)
                points.push_back({below(4000) / 10.0 - 30, below(8000) / 10.0 - 50});
            Stroke stroke = makeStroke(PointList(std::move(points)), below(3) == 0 ? 40 : 1,
                                       Stroke::allShapeTypes[below(4)]);
            stroke.opacity = 0.6;
            stroke.isFill = below(5) == 0;
            add(stroke, layer);
        }
    }
    const double height = 700;
    std::vector<std::uint8_t> bytes(330 * 700 * 4);
    BitmapContext atOnce({bytes.data(), 330 * 4, {0, 0, 330, 700}}, DeviceFrame::yUp(height));
    atOnce.fillRect({{0, 0}, {330, 700}}, document.backgroundColor);
    for (const Layer& layer : *document.layers) {
        drawLayer(atOnce, layer, document.canvasSize, height,
                  [&](const Bytes& file) { return codec.decode(file.span()); });
    }
    EXPECT_EQ(renderCGImage(document), RasterImage(330, 700, bytes));
}

}  // namespace
