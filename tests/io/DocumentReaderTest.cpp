#include "io/DocumentReader.h"

#include "tests/io/SampleText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>

using namespace marlevo;

namespace {

/// The sample with the first `from` replaced by `to`.
std::string sampleWith(std::string_view from, std::string_view to) {
    std::string text = sampleText;
    const std::size_t at = text.find(from);
    EXPECT_NE(at, text.npos) << from;
    return text.replace(at, from.size(), to);
}

Result<DocumentData> read(std::string_view text) { return readDocumentData(PaddedBytes(text)); }

std::string errorOf(std::string_view text) {
    const auto document = read(text);
    return document ? "accepted" : document.error().text;
}

TEST(DocumentReader, acceptsOtherTextsOfTheSameDocument) {
    const std::pair<const char*, std::string> cases[] = {
        {"whole number with a fraction", sampleWith("1,", "1.0,")},
        {"whole number with an exponent", sampleWith("1,", "10e-1,")},
        {"number with an exponent", sampleWith("1280", "1.28E+3")},
        {"byte order mark", "\xEF\xBB\xBF" + sampleText},
        {"white space around", " \r\n\t" + sampleText + " \n"},
        {"no image, said explicitly", sampleWith("\"strokes\"", "\"imageData\":null,\"strokes\"")},
        {"trailing odd number", sampleWith("240 ]", "240, 7 ]")},
        {"escaped key", sampleWith("\"name\"", "\"n\\u0061me\"")},
        {"escaped text", sampleWith("Background", "\\u0042ackgroun\\u0064")},
        {"escaped slash in base64 that is replaced later",
         sampleWith("\"imageData\"", "\"imageData\":\"\\/\\/\\/\\/\",\"imageData\"")},
        {"unknown keys at every level",
         sampleWith("\"layers\" : [\n    {",
                    "\"a\":{\"b\":[1e999,{}]},\"layers\" : [\n {\"id\":\"x\",\"c\":[[]],")},
        {"unknown key in a stroke", sampleWith("\"points\"", "\"d\":-0.5e-3,\"points\"")},
        {"last of two keys", sampleWith("\"version\"", "\"version\" : 9,\"version\"")},
        {"last of two keys, the first of a wrong type",
         sampleWith("\"version\"", "\"layers\":[{\"strokes\":[3]}],\"version\"")},
        {"last of two points", sampleWith("\"points\"", "\"points\":[1,[2]],\"points\"")},
    };
    const auto expected = read(sampleText);
    ASSERT_TRUE(expected);
    for (const auto& [what, text] : cases) {
        const auto document = read(text);
        ASSERT_TRUE(document) << what << ": " << document.error().text;
        EXPECT_TRUE(*document == *expected) << what;
    }
}

TEST(DocumentReader, acceptsAllValuesOfTheRightType) {
    EXPECT_EQ(read(sampleWith("1,", "7,"))->version, 7);
    EXPECT_EQ(read(sampleWith("1,", "-9223372036854775808,"))->version,
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(read(sampleWith("1280", "-5"))->canvasWidth, -5);
    EXPECT_EQ(read(sampleWith("\"line\"", "\"circle\""))->layers[0].strokes[0].shapeType, "circle");
    EXPECT_TRUE(
        read(sampleWith("10, 20, 300.5, 240", "10"))->layers[0].strokes[0].points.isEmpty());
    EXPECT_EQ(
        read(sampleWith("Background", "a\\u00e9\\uD83D\\uDE00\\n\\\"\\/\\\\"))->layers[0].name,
        "a\xC3\xA9\xF0\x9F\x98\x80\n\"/\\");
    EXPECT_EQ(read(sampleWith("iVBORw0KGgo=", "\\/\\/8="))->layers[1].imageData, Bytes({255, 255}));
    EXPECT_EQ(read(sampleWith("iVBORw0KGgo=", ""))->layers[1].imageData, Bytes({}));
}

TEST(DocumentReader, readsNumbersOfAnyLengthLikeTheStandardLibrary) {
    std::vector<std::string> numbers{"0",
                                     "-0",
                                     "-0.0e5",
                                     "18446744073709551617",
                                     "-100000000000000000000000000000",
                                     "0.1000000000000000055511151231257827021181583404541015625",
                                     "9007199254740993",
                                     "9007199254740993.0000000000000000000000000000000001",
                                     "1.7976931348623157e308",
                                     "4.9e-324",
                                     "2.2250738585072011e-308",
                                     "1e-400",
                                     "0e999",
                                     "0." + std::string(5000, '0') + "1e5001"};
    std::mt19937 random(7);
    const auto digits = [&](std::size_t most) {
        std::string text;
        for (std::size_t i = random() % (most + 1); i > 0; --i)
            text += static_cast<char>('0' + (random() % 3 == 0 ? 0 : random() % 10));
        return text;
    };
    while (numbers.size() < 20'000) {
        std::string number = random() % 2 == 0 ? "-" : "";
        number += random() % 2 == 0 ? "0" : "7" + digits(30);
        if (random() % 3 != 0) number += "." + digits(40) + "3";
        if (random() % 3 == 0)
            number += (random() % 2 == 0 ? "e-" : "E+") + std::to_string(random() % 250);
        numbers.push_back(std::move(number));
    }
    std::string list = "1";
    for (const std::string& number : numbers)
        list += ", " + number + std::string(random() % 3, ' ');
    const auto document = read(sampleWith("10, 20, 300.5, 240", list + ", 1"));
    ASSERT_TRUE(document) << document.error().text;
    const PointList& points = document->layers[0].strokes[0].points;
    ASSERT_EQ(points.size(), numbers.size() / 2 + 1);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const Point& point = points[(i + 1) / 2];
        double expected = 0;
        std::from_chars(numbers[i].data(), numbers[i].data() + numbers[i].size(), expected);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(i % 2 == 0 ? point.y : point.x),
                  std::bit_cast<std::uint64_t>(expected))
            << numbers[i];
    }
}

TEST(DocumentReader, reportsTheKeyPathOfAWrongValue) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"1280", "\"1280\"", "canvasWidth: a number was expected"},
        {"1280", "1e309", "canvasWidth: the number is too large"},
        {"1,", "1.5,", "version: a whole number was expected"},
        {"1,", "true,", "version: a whole number was expected"},
        {"1,", "9223372036854775808,", "version: the number is too large"},
        {"false", "0", "bgTransparent: true or false was expected"},
        {"\"version\" : 1,", "", "version is missing"},
        {"\"version\"", "\"Version\"", "version is missing"},
        {"\"name\" : \"Background\",", "", "layers[0]: name is missing"},
        {"\"Background\"", "null", "layers[0].name: a string was expected"},
        {"\"isFill\" : false,", "", "layers[0].strokes[0]: isFill is missing"},
        {"240", "[240]", "layers[0].strokes[0].points[3]: a number was expected"},
        {"[ 10, 20, 300.5, 240 ]", "{}", "layers[0].strokes[0].points: an array was expected"},
        {"[ ]", "[ 1 ]", "layers[1].strokes[0]: an object was expected"},
        {"\"iVBORw0KGgo=\"", "12", "layers[1].imageData: a string was expected"},
        {"Ggo=", "Ggo", "layers[1].imageData: the text is not valid base64"},
        {"iVBO", "iV\\nBO", "layers[1].imageData: the text is not valid base64"},
    };
    for (const auto& [from, to, error] : cases)
        EXPECT_EQ(errorOf(sampleWith(from, to)), error) << from << " -> " << to;
    EXPECT_EQ(errorOf("[]"), "an object was expected");
    EXPECT_EQ(errorOf("12"), "an object was expected");
}

TEST(DocumentReader, reportsLineAndColumnOfMalformedText) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"1280", "1280.", "canvasWidth: line 3, column 24: a digit was expected"},
        {"1280", "-", "canvasWidth: line 3, column 20: a digit was expected"},
        {"1280", "1e", "canvasWidth: line 3, column 21: a digit was expected"},
        {"1280", "NaN", "canvasWidth: line 3, column 19: a value was expected"},
        {"1280", "1280x", "line 3, column 23: ',' or '}' was expected"},
        {"1280,", "1280", "line 4, column 3: ',' or '}' was expected"},
        {"1280,", "1280,,", "line 3, column 24: a string was expected"},
        {"\"version\" :", "\"version\"", "line 2, column 13: ':' was expected"},
        {"240 ]", "240, ]",
         "layers[0].strokes[0].points[4]: line 17, column 44: a value was expected"},
        {"240 ]", "240 }",
         "layers[0].strokes[0].points: line 17, column 43: ',' or ']' was expected"},
        {"Background", "Bäck\tground",
         "layers[0].name: line 12, column 21: a string contains a control character"},
        {"Background", "\\x", "layers[0].name: line 12, column 18: an unknown escape"},
        {"Background", "\\u12G4",
         "layers[0].name: line 12, column 18: four hexadecimal digits were expected"},
        {"Background", "\\uD800\\u0041",
         "layers[0].name: line 12, column 23: a string contains a lone surrogate"},
        {"Background", "\\uDC00",
         "layers[0].name: line 12, column 18: a string contains a lone surrogate"},
        {"Background", "\xC0\xAF", "layers[0].name: line 12, column 17: the text is not UTF-8"},
        {"Background", "\xED\xA0\x80", "layers[0].name: line 12, column 17: the text is not UTF-8"},
        {"\"version\"", "\"x\" : [1, 2, {\"y\" : 0x10}], \"version\"",
         "x[2]: line 2, column 24: ',' or '}' was expected"},
        {"\"version\"", "\"x\" : 1=0, \"version\"", "line 2, column 10: ',' or '}' was expected"},
        {"\"version\"", "\"x\" : tru, \"version\"", "x: line 2, column 9: a value was expected"},
        {"\"Background\",", "\"Background\":],",
         "layers[0]: line 12, column 28: ',' or '}' was expected"},
        {"\"Background\",", "\"x\" : \"opacity\" : 1 \"y\",",
         "layers[0]: line 12, column 20: ',' or '}' was expected"},
        {"\"line\"", "\"line\":}} ]",
         "layers[0].strokes[0]: line 26, column 31: ',' or '}' was expected"},
        {"Ggo=\"", "Ggo=\":]", "layers[1]: line 34, column 35: ',' or '}' was expected"},
        {"\n}\n", "\n} {}", "line 38, column 3: something follows the document's end"},
        {"\n}\n", "\n", "line 38, column 1: ',' or '}' was expected"},
    };
    for (const auto& [from, to, error] : cases)
        EXPECT_EQ(errorOf(sampleWith(from, to)), error) << from << " -> " << to;
    EXPECT_EQ(errorOf(""), "line 1, column 1: the text is empty");
    EXPECT_EQ(errorOf(" \n"), "line 2, column 1: the text is empty");
    EXPECT_EQ(errorOf("\"abc"), "line 1, column 5: the text ends within a string");
}

TEST(DocumentReader, readsLongTextsLikeShortOnes) {
    // Long enough for two threads.
    constexpr std::size_t copies = 10'000;
    const std::size_t from = sampleText.find("        {\n");
    const std::string stroke = sampleText.substr(from, sampleText.find("\n      ]") - from);
    const auto textWith = [&](const std::string& last) {
        std::string strokes;
        for (std::size_t i = 1; i < copies; ++i)
            strokes += stroke + ",\n";
        return sampleWith(stroke, strokes + last);
    };
    const auto changed = [&](std::string_view part, std::string_view to) {
        std::string last = stroke;
        return last.replace(last.find(part), part.size(), to);
    };

    auto document = read(textWith(changed("240", "250")));
    ASSERT_TRUE(document);
    auto& strokes = document->layers[0].strokes;
    ASSERT_EQ(strokes.size(), copies);
    EXPECT_EQ(strokes.back().points[1], (Point{300.5, 250}));
    strokes.resize(copies - 1);
    EXPECT_TRUE(std::ranges::all_of(strokes, [&](const StrokeData& s) { return s == strokes[0]; }));
    strokes.resize(1);
    EXPECT_TRUE(*document == *read(sampleText));

    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"10,", "10, \"x\",", ".points[1]: a number was expected"},
        {"\"isFill\" : false,", "", ": isFill is missing"},
        {"\"isFill\"", "\"x\" : [1}, \"isFill\"",
         ".x: line 120013, column 19: ',' or ']' was expected"},
        {"240 ]", "240, ]", ".points[4]: line 120005, column 44: a value was expected"},
        {"240 ]", "240 }", ".points: line 120005, column 43: ',' or ']' was expected"},
    };
    for (const auto& [part, to, error] : cases)
        EXPECT_EQ(errorOf(textWith(changed(part, to))), "layers[0].strokes[9999]" + error);
    EXPECT_EQ(errorOf(textWith("{},")),
              "layers[0].strokes[10000]: line 120005, column 7: a value was expected");
    EXPECT_EQ(errorOf(textWith("17")), "layers[0].strokes[9999]: an object was expected");
    // The last value of a repeated key counts, even if the first one is wrong.
    EXPECT_EQ(errorOf(textWith(changed("\"isFill\"", "\"isFill\" : 1, \"isFill\""))), "accepted");
}

TEST(DocumentReader, refusesEveryPrefixOfAFile) {
    for (std::size_t length = 0; length + 2 < sampleText.size(); ++length)
        EXPECT_NE(errorOf(sampleText.substr(0, length)).find("line "), std::string::npos) << length;
}

TEST(DocumentReader, limitsNesting) {
    const auto nested = [](std::size_t depth) {
        const std::string text = std::string(depth, '[') + std::string(depth, ']');
        return sampleWith("\"version\"", "\"x\" : " + text + ", \"version\"");
    };
    EXPECT_EQ(errorOf(nested(511)), "accepted");
    EXPECT_NE(errorOf(nested(512)).find("nested too deep"), std::string::npos);
    EXPECT_NE(errorOf(nested(2'000'000)).find("nested too deep"), std::string::npos);
    EXPECT_NE(errorOf(std::string(2'000'000, '[')), "accepted");
}

}  // namespace
