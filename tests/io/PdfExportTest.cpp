#include "io/Export.h"
#include "io/FixedDecimal.h"
#include "model/DrawingDocument.h"
#include "render/RasterCompositing.h"
#include "tests/support/Drawing.h"
#include "tests/support/FakeImageCodec.h"
#include "tests/support/PageReaders.h"
#include "tests/support/SmallJpeg.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

using namespace marlevo;

namespace {

using Type = Stroke::ShapeType;

/// Recognises the one JPEG file of the tests by its size and decodes it to `jpegPixels`.
class KnownJpegCodec : public FakeImageCodec {
public:
    std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override {
        return file.size() >= smallJpeg.size() ? jpegPixels : FakeImageCodec::decode(file);
    }

    std::optional<RasterImage> jpegPixels;
};

class PdfExport : public testing::Test {
protected:
    PdfExport() : document({.imageCodec = &codec}) {
        document.ensureLayers();
        document.canvasSize = CanvasSize{200, 120};
    }

    void add(const Stroke& stroke) { addStroke(document, stroke); }

    std::string text() const {
        const auto bytes = renderPDFData(document);
        return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
    }

    KnownJpegCodec codec;
    DrawingDocument document;
};

/// The canvas's orientation seen in four of its pixels: red, blue, green, green when upright.
RasterImage turned(int orientation) {
    using Pixel = std::array<std::uint8_t, 4>;
    constexpr Pixel red{255, 224, 49, 32};
    constexpr Pixel blue{255, 32, 64, 207};
    constexpr Pixel green{255, 32, 176, 65};
    const bool isTurned = orientation >= 5;
    const int width = isTurned ? 16 : 32;
    const int height = isTurned ? 32 : 16;
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            // Where the upright pixel is stored: Exif names the sides of the stored row 0, column
            // 0.
            const int across = isTurned ? y : x;
            const int down = isTurned ? x : y;
            const bool isAcrossMirrored =
                orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
            const bool isDownMirrored =
                orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
            const int column = isAcrossMirrored ? 31 - across : across;
            const int row = isDownMirrored ? 15 - down : down;
            const Pixel& pixel = row >= 8 ? green : column < 16 ? red : blue;
            bytes.insert(bytes.end(), pixel.begin(), pixel.end());
        }
    }
    return {width, height, std::move(bytes)};
}

double meanDifference(const RasterImage& expected, const PagePicture& shown) {
    double sum = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const auto pixel = expected.pixel(x, y);
            const auto other = shown.pixel(x, y);
            for (int i = 0; i < 3; ++i)
                sum += std::abs(pixel[i + 1] + (255 - pixel[0]) - other[i]);
        }
    }
    return sum / (3.0 * expected.width() * expected.height());
}

class PdfInReaders : public PdfExport, public testing::WithParamInterface<PageReader> {
protected:
    void SetUp() override {
        if (!isInstalled(GetParam())) GTEST_SKIP() << GetParam().program << " is not installed";
    }

    /// The mean difference of the page from the raster, in levels of 255.
    double difference() {
        const auto page = showPage(GetParam(), renderPDFData(document).value());
        const auto raster = renderCGImage(document);
        if (!page || page->width != raster->width() || page->height != raster->height()) return 255;
        return meanDifference(*raster, *page);
    }
};

INSTANTIATE_TEST_SUITE_P(, PdfInReaders, testing::ValuesIn(pageReaders),
                         [](const auto& test) { return test.param.name; });

TEST_P(PdfInReaders, APageLooksLikeTheRaster) {
    document.backgroundColor = Color{0.9, 0.95, 1, 1};
    Stroke loop = makeStroke({{20, 20}, {180, 100}, {180, 20}, {20, 100}, {100, 10}}, 12);
    loop.color = {0.8, 0.1, 0.1, 0.9};
    loop.opacity = 0.5;
    add(loop);
    add(makeStroke({{100, 110}, {190, 90}}, 2, Type::line));
    add(makeStroke({{130, 30}, {160, 70}}, 4, Type::ellipse));
    Stroke fill = makeStroke({{10, 60}, {60, 60}, {60, 110}, {10, 110}}, 3);
    fill.isFill = true;
    fill.color = {0, 0.5, 0, 1};
    fill.opacity = 0.7;
    add(fill);
    EXPECT_LT(difference(), 1.5);

    document.backgroundIsTransparent = true;
    EXPECT_LT(difference(), 1.5);
}

TEST_P(PdfInReaders, MarksWithoutExtentAreTheSameDots) {
    add(makeStroke({{30, 30}, {30, 30}}, 20));
    add(makeStroke({{80, 30}, {80, 30}, {80, 30}, {80, 30}}, 20));
    add(makeStroke({{130, 30}, {130, 30}}, 20, Type::rect));
    add(makeStroke({{30, 80}, {30, 80}}, 20, Type::ellipse));
    add(makeStroke({{80, 80}, {110, 80}}, 20, Type::rect));
    add(makeStroke({{140, 80}, {180, 80}}, 20, Type::ellipse));
    Stroke nothing = makeStroke({{10, 110}, {190, 110}}, 3, Type::rect);
    nothing.isFill = true;
    add(nothing);
    EXPECT_LT(difference(), 0.8);
}

TEST_P(PdfInReaders, LinesFromFarAwayCrossThePageWhereTheRasterHasThem) {
    add(makeStroke({{-1e7, -1e7}, {1e7, 1e7}}, 6, Type::line));
    add(makeStroke({{-1e12, 60}, {1e12, 60}, {1e300, 60}}, 6));
    add(makeStroke({{20, -1e9}, {20, 1e9}}, 6, Type::rect));
    EXPECT_LT(difference(), 1.5);
}

TEST_P(PdfInReaders, DotsOfPathsThatHoldOddPointsAreShown) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    add(makeStroke({{60, 60}, {60, 60}, {nan, 5}}, 40, Type::freehand));
    add(makeStroke({{140, 60}, {nan, 60}}, 40, Type::line));
    add(makeStroke({{1e9, 60}, {1e9, 60}}, 40, Type::line));
    EXPECT_LT(difference(), 0.8);
}

TEST_P(PdfInReaders, ImagesAreUprightWithTheirAlphaAndOpacity) {
    std::vector<std::uint8_t> file{20, 12};
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 20; ++x) {
            const std::uint8_t alpha = x < 10 ? 255 : 128;
            const std::array<std::uint8_t, 4> pixel{alpha, y < 6 ? alpha : std::uint8_t{0},
                                                    static_cast<std::uint8_t>(alpha / 2), 0};
            file.insert(file.end(), pixel.begin(), pixel.end());
        }
    }
    addLayer(document, imageLayer(file, 0.75));
    EXPECT_LT(difference(), 3);
}

TEST_P(PdfInReaders, PhotosAreTurnedUpright) {
    for (std::uint8_t orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(int{orientation});
        document.layers = LayerList{imageLayer(jpegWithOrientation(orientation), 0.75)};
        codec.jpegPixels = turned(orientation);
        EXPECT_NE(text().find("/DCTDecode"), std::string::npos);
        EXPECT_LT(difference(), 6);
    }
}

TEST_P(PdfInReaders, ValuesThatPdfCannotHoldLookLikeTheRaster) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    Stroke odd = makeStroke({{nan, 5}, {1e300, nan}, {10, 10}, {50, 50}}, 40);
    odd.color = {nan, 7, -3, 1};
    odd.opacity = 7;
    add(odd);
    odd.opacity = -1;
    odd.lineWidth = 1e300;
    add(odd);
    odd.lineWidth = nan;
    add(odd);
    EXPECT_LT(difference(), 1.5);
}

TEST_P(PdfInReaders, ALineMayCrossFromOneStreamToTheNext) {
    // A spiral whose text is longer than one stream.
    std::vector<Point> points;
    for (int i = 0; i < 40000; ++i) {
        const double turn = i * 5e-4;
        points.push_back({100 + 4 * turn * std::cos(turn), 60 + 2 * turn * std::sin(turn)});
    }
    add(makeStroke(PointList(std::move(points)), 4));
    const std::string page = text();
    const std::size_t first = page.find("/FlateDecode");
    ASSERT_NE(page.find("/FlateDecode", first + 1), std::string::npos);
    // Readers differ in the edges of such short segments.
    EXPECT_LT(difference(), 4);
}

TEST_F(PdfExport, TheMediaBoxIsTheCanvasWithItsFractions) {
    EXPECT_THAT(text(), testing::HasSubstr("/MediaBox [ 0 0 200 120 ]"));
    document.canvasSize = CanvasSize{800.7, 600.2};
    EXPECT_THAT(text(), testing::HasSubstr("/MediaBox [ 0 0 800.7 600.2 ]"));
}

TEST_F(PdfExport, CanvasesBeyondTheSizeOfAPageGiveNothing) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double side : {0.0, -5.0, nan, 1e300, 1.0 / 0.0}) {
        document.canvasSize = CanvasSize{side, 100};
        EXPECT_FALSE(renderPDFData(document)) << side;
        document.canvasSize = CanvasSize{100, side};
        EXPECT_FALSE(renderPDFData(document)) << side;
    }
    document.canvasSize = CanvasSize{0.5, 100};
    EXPECT_TRUE(renderPDFData(document));
}

TEST_F(PdfExport, PhotosKeepTheirBytesUnlessTheirPixelsAreOthers) {
    const std::vector<std::uint8_t> file(smallJpeg.begin(), smallJpeg.end());
    const std::string bytes(file.begin(), file.end());
    codec.jpegPixels = turned(1);
    document.layers = LayerList{imageLayer(file)};
    EXPECT_THAT(text(), testing::HasSubstr(bytes));

    document.layers = LayerList{imageLayer(file)};
    codec.jpegPixels = turned(6);
    EXPECT_THAT(text(), testing::Not(testing::HasSubstr(bytes)));
    EXPECT_THAT(text(), testing::HasSubstr("/Image"));

    document.layers = LayerList{imageLayer(file)};
    codec.jpegPixels.reset();
    EXPECT_THAT(text(), testing::Not(testing::HasSubstr("/Image")));
}

TEST_F(PdfExport, NumbersAreDecimals) {
    const auto fixed = [](double number) {
        char digits[maxFixedLength];
        return std::string(digits, writeFixed<3>(number, digits));
    };
    EXPECT_EQ(fixed(0), "0");
    EXPECT_EQ(fixed(-0.0004), "0");
    EXPECT_EQ(fixed(7.2e-05), "0");
    EXPECT_EQ(fixed(-0.0625), "-0.063");
    EXPECT_EQ(fixed(1000.05), "1000.05");
    EXPECT_EQ(fixed(0.9996), "1");
    EXPECT_EQ(fixed(4e9), "4000000000");
}

TEST_F(PdfExport, HiddenLayersAndSinglePointsAreLeftOut) {
    const std::string empty = text();
    add(makeStroke({{50, 50}}, 10));
    EXPECT_EQ(text(), empty);
    add(makeStroke({{50, 50}, {60, 60}}, 10));
    EXPECT_NE(text(), empty);
    document.toggleLayerVisibility(0);
    EXPECT_EQ(text(), empty);
}

}  // namespace
