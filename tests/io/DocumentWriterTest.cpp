#include "io/DocumentWriter.h"

#include "io/DocumentReader.h"
#include "tests/io/SampleText.h"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

using namespace marlevo;

namespace {

std::string textOf(const DocumentData& document) {
    const auto text = writeDocumentData(document);
    return text ? text->joined() : "error: " + text.error().text;
}

/// Random documents, with numbers of all kinds of bit patterns.
class RandomDocument {
public:
    explicit RandomDocument(unsigned seed) : random_(seed) {}

    DocumentData make(std::size_t mostStrokes) {
        DocumentData document;
        document.version = static_cast<std::int64_t>(random_());
        for (double* value : {&document.canvasWidth, &document.canvasHeight, &document.bgColorR,
                              &document.bgColorG, &document.bgColorB, &document.bgColorA})
            *value = number();
        document.bgTransparent = below(2) == 0;
        document.layers.resize(below(4));
        for (LayerData& layer : document.layers) {
            layer.name = text();
            layer.isVisible = below(2) == 0;
            layer.opacity = number();
            if (below(2) == 0) {
                std::vector<std::uint8_t> bytes(below(3) == 0 ? 200'000 : below(5));
                for (std::uint8_t& byte : bytes)
                    byte = static_cast<std::uint8_t>(random_());
                layer.imageData = Bytes(std::move(bytes));
            }
            layer.strokes.resize(below(mostStrokes));
            for (StrokeData& stroke : layer.strokes)
                stroke = makeStroke();
        }
        return document;
    }

private:
    StrokeData makeStroke() {
        StrokeData stroke;
        std::vector<Point> points(below(20));
        for (Point& point : points)
            point = {number(), number()};
        stroke.points = PointList(std::move(points));
        for (double* value : {&stroke.colorR, &stroke.colorG, &stroke.colorB, &stroke.colorA,
                              &stroke.lineWidth, &stroke.opacity})
            *value = number();
        stroke.isEraser = below(2) == 0;
        stroke.isFill = below(2) == 0;
        stroke.shapeType = text();
        return stroke;
    }

    double number() {
        switch (below(4)) {
        case 0:
            return static_cast<double>(below(2000)) - 1000;
        case 1:
            return std::ldexp(static_cast<double>(random_()), -static_cast<int>(below(80)));
        case 2:
            return -0.0;
        default: {
            const auto any = std::bit_cast<double>(static_cast<std::uint64_t>(random_()));
            return std::isfinite(any) ? any : 0.5;
        }
        }
    }

    std::string text() {
        static const std::vector<std::string> letters{"a",    "\"",   "\\", "/",      "\n", "\x01",
                                                      "\x1F", "\x7F", "é",  "\u2028", "😀"};
        std::string text;
        for (std::size_t i = below(12); i > 0; --i)
            text += letters[below(letters.size())];
        return text;
    }

    std::size_t below(std::size_t limit) { return random_() % limit; }

    std::mt19937_64 random_;
};

TEST(DocumentWriter, writesTheDocumentedText) {
    DocumentData document;
    document.canvasWidth = 1280;
    document.canvasHeight = 720;
    document.bgColorR = document.bgColorB = document.bgColorA = 1;
    document.bgColorG = 0.5;
    document.layers.resize(2);
    for (LayerData& layer : document.layers) {
        layer.isVisible = true;
        layer.opacity = 1;
    }
    LayerData& drawn = document.layers[0];
    drawn.name = "Background";
    StrokeData& stroke = drawn.strokes.emplace_back();
    stroke.points = PointList({{10, 20}, {300.5, 240}});
    stroke.colorA = stroke.opacity = 1;
    stroke.lineWidth = 5;
    stroke.shapeType = "line";
    document.layers[1].name = "Image";
    document.layers[1].imageData = Bytes({0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'});
    EXPECT_EQ(textOf(document), sampleText);

    document.canvasHeight = 0.1;
    document.bgColorA = -0.0;
    document.layers[1].name = "A \"quoted\"\tname\x01";
    drawn.strokes.emplace_back();
    const std::string text = textOf(document);
    for (const char* part : {"\"canvasHeight\" : 0.1,\n", "\"bgColorA\" : -0,\n",
                             R"("name" : "A \"quoted\"\tname\u0001",)",
                             "        },\n        {\n          \"points\" : [ ],\n"})
        EXPECT_THAT(text, testing::HasSubstr(part));
    EXPECT_THAT(textOf(DocumentData()), testing::EndsWith("\"layers\" : [ ]\n}\n"));
}

TEST(DocumentWriter, randomDocumentsAreReadBackBitForBit) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        // Every tenth is long enough for two threads.
        const DocumentData document = RandomDocument(seed).make(seed % 10 == 0 ? 3000 : 8);
        const std::string text = textOf(document);
        const auto copy = readDocumentData(PaddedBytes(text));
        ASSERT_TRUE(copy) << seed << ": " << copy.error().text;
        EXPECT_TRUE(*copy == document) << seed;
        EXPECT_EQ(textOf(*copy), text) << seed;  // distinguishes −0 from 0, unlike ==
    }
}

TEST(DocumentWriter, namesTheFirstNumberThatIsNotFinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    DocumentData document;
    document.layers.resize(2);
    document.layers[1].strokes.resize(3);
    document.layers[1].strokes[2].points = PointList({{1, 2}, {3, -infinity}});
    EXPECT_EQ(textOf(document), "error: layers[1].strokes[2].points[3]: the number is not finite");
    document.layers[1].strokes[0].lineWidth = std::nan("");
    EXPECT_EQ(textOf(document), "error: layers[1].strokes[0].lineWidth: the number is not finite");
    document.canvasHeight = infinity;
    EXPECT_EQ(textOf(document), "error: canvasHeight: the number is not finite");
}

}  // namespace
