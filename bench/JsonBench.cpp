// Reader and writer of document files, compared with Qt's JSON document class in the same run.
// Times are the best of several rounds. Memory is the growth of the process at its peak.

#include "io/DocumentReader.h"
#include "io/DocumentWriter.h"
#include "model/Stroke.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <malloc.h>
#include <random>

using namespace marlevo;

namespace {

// ---- What is measured on
// --------------------------------------------------------------------------

DocumentData makeDocument(std::size_t strokes, std::size_t imageBytes) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> x(0, 1280);
    std::uniform_real_distribution<double> unit(0, 1);
    DocumentData document{.canvasWidth = 1280, .canvasHeight = 720, .layers = {}};
    LayerData layer{
        .name = "Background", .isVisible = true, .opacity = 1, .imageData = {}, .strokes = {}};
    for (std::size_t i = 0; i < strokes; ++i) {
        std::vector<Point> points(100);
        for (Point& point : points)
            point = {x(random), x(random)};
        layer.strokes.push_back({.points = PointList(std::move(points)),
                                 .colorR = unit(random),
                                 .colorG = unit(random),
                                 .colorB = unit(random),
                                 .colorA = 1,
                                 .lineWidth = 5,
                                 .opacity = 1,
                                 .shapeType = "freehand"});
    }
    if (imageBytes > 0) {
        std::vector<std::uint8_t> bytes(imageBytes);
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(random());
        layer.imageData = Bytes(std::move(bytes));
    }
    document.layers.push_back(std::move(layer));
    return document;
}

// ---- The same with Qt
// -------------------------------------------------------------------------------

QByteArray writeWithQt(const DocumentData& document) {
    QJsonArray layers;
    for (const LayerData& layer : document.layers) {
        QJsonArray strokes;
        for (const StrokeData& stroke : layer.strokes) {
            QJsonArray points;
            for (const Point& point : stroke.points) {
                points.append(point.x);
                points.append(point.y);
            }
            strokes.append(QJsonObject{{"points", points},
                                       {"colorR", stroke.colorR},
                                       {"colorG", stroke.colorG},
                                       {"colorB", stroke.colorB},
                                       {"colorA", stroke.colorA},
                                       {"lineWidth", stroke.lineWidth},
                                       {"opacity", stroke.opacity},
                                       {"isEraser", stroke.isEraser},
                                       {"isFill", stroke.isFill},
                                       {"shapeType", QString::fromStdString(stroke.shapeType)}});
        }
        QJsonObject object{{"name", QString::fromStdString(layer.name)},
                           {"isVisible", layer.isVisible},
                           {"opacity", layer.opacity},
                           {"strokes", strokes}};
        if (layer.imageData) {
            const auto bytes = QByteArray::fromRawData(
                reinterpret_cast<const char*>(layer.imageData->span().data()),
                static_cast<qsizetype>(layer.imageData->size()));
            object["imageData"] = QString::fromLatin1(bytes.toBase64());
        }
        layers.append(object);
    }
    const QJsonObject root{{"version", static_cast<qint64>(document.version)},
                           {"canvasWidth", document.canvasWidth},
                           {"canvasHeight", document.canvasHeight},
                           {"bgColorR", document.bgColorR},
                           {"bgColorG", document.bgColorG},
                           {"bgColorB", document.bgColorB},
                           {"bgColorA", document.bgColorA},
                           {"bgTransparent", document.bgTransparent},
                           {"layers", layers}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

DocumentData readWithQt(const QByteArray& text) {
    const QJsonObject root = QJsonDocument::fromJson(text).object();
    DocumentData document{.version = root["version"].toInteger(),
                          .canvasWidth = root["canvasWidth"].toDouble(),
                          .canvasHeight = root["canvasHeight"].toDouble(),
                          .bgColorR = root["bgColorR"].toDouble(),
                          .bgColorG = root["bgColorG"].toDouble(),
                          .bgColorB = root["bgColorB"].toDouble(),
                          .bgColorA = root["bgColorA"].toDouble(),
                          .bgTransparent = root["bgTransparent"].toBool(),
                          .layers = {}};
    for (const auto layerValue : root["layers"].toArray()) {
        const QJsonObject object = layerValue.toObject();
        LayerData layer{.name = object["name"].toString().toStdString(),
                        .isVisible = object["isVisible"].toBool(),
                        .opacity = object["opacity"].toDouble(),
                        .imageData = {},
                        .strokes = {}};
        if (object.contains("imageData")) {
            const QByteArray bytes =
                QByteArray::fromBase64(object["imageData"].toString().toLatin1());
            layer.imageData = Bytes({bytes.begin(), bytes.end()});
        }
        for (const auto strokeValue : object["strokes"].toArray()) {
            const QJsonObject stroke = strokeValue.toObject();
            const QJsonArray numbers = stroke["points"].toArray();
            std::vector<Point> points;
            points.reserve(static_cast<std::size_t>(numbers.size() / 2));
            for (qsizetype i = 0; i + 1 < numbers.size(); i += 2)
                points.push_back({numbers[i].toDouble(), numbers[i + 1].toDouble()});
            layer.strokes.push_back({.points = PointList(std::move(points)),
                                     .colorR = stroke["colorR"].toDouble(),
                                     .colorG = stroke["colorG"].toDouble(),
                                     .colorB = stroke["colorB"].toDouble(),
                                     .colorA = stroke["colorA"].toDouble(),
                                     .lineWidth = stroke["lineWidth"].toDouble(),
                                     .opacity = stroke["opacity"].toDouble(),
                                     .isEraser = stroke["isEraser"].toBool(),
                                     .isFill = stroke["isFill"].toBool(),
                                     .shapeType = stroke["shapeType"].toString().toStdString()});
        }
        document.layers.push_back(std::move(layer));
    }
    return document;
}

// ---- Measuring
// --------------------------------------------------------------------------------------

template <typename Work>
double milliseconds(int rounds, Work work) {
    double best = std::numeric_limits<double>::infinity();
    for (int i = 0; i < rounds; ++i) {
        const auto start = std::chrono::steady_clock::now();
        [[maybe_unused]] const auto result = work();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        best = std::min(best, time.count());
    }
    return best;
}

double megabytesOf(const char* key) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (double kibibytes = 0; word == key && status >> kibibytes) return kibibytes * 1024 / 1e6;
    return 0;
}

/// The growth of the process at its peak during the work, in megabytes.
template <typename Work>
double peakGrowth(Work work) {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5\n";  // resets the peak
    const double before = megabytesOf("VmRSS:");
    [[maybe_unused]] const auto result = work();
    return megabytesOf("VmHWM:") - before;
}

bool isAllMet = true;

void row(const char* what, double measured, const char* unit, double limit, bool isAtLeast) {
    const bool isMet = isAtLeast ? measured >= limit : measured <= limit;
    isAllMet = isAllMet && isMet;
    std::printf("%-52s %9.1f %-5s %s %8.1f  %s\n", what, measured, unit,
                isAtLeast ? ">=" : "<=", limit, isMet ? "met" : "MISSED");
}

}  // namespace

int main() {
    constexpr std::size_t imageBytes = 20'000'000;
    constexpr int rounds = 5;
    const DocumentData document = makeDocument(10'000, imageBytes);

    const double writeMemory = peakGrowth([&] { return writeDocumentData(document); });
    const std::string text = writeDocumentData(document)->joined();
    const double textSize = static_cast<double>(text.size()) / 1e6;
    const double readMemory = peakGrowth([&] {
        const PaddedBytes contents(text);
        return readDocumentData(contents);
    });

    const PaddedBytes contents(text);
    const QByteArray qtText(text.data(), static_cast<qsizetype>(text.size()));
    if (!(*readDocumentData(contents) == document) || !(readWithQt(qtText) == document)) {
        std::puts("the readers disagree");
        return EXIT_FAILURE;
    }
    const double read = milliseconds(rounds, [&] { return readDocumentData(contents); });
    const double write = milliseconds(rounds, [&] { return writeDocumentData(document); });
    const double qtRead = milliseconds(rounds, [&] { return readWithQt(qtText); });
    const double qtWrite = milliseconds(rounds, [&] { return writeWithQt(document); });

    const DocumentData small = makeDocument(1'000, 0);
    const DocumentData large = makeDocument(10'000, 0);
    const double encodeSmall = milliseconds(20, [&] { return writeDocumentData(small); });
    const double encodeLarge = milliseconds(10, [&] { return writeDocumentData(large); });

    std::printf("10,000 strokes of 100 points and a 20 MB image, %.1f MB of text\n\n", textSize);
    std::printf("%-52s %9.1f ms\n", "read", read);
    std::printf("%-52s %9.1f ms\n", "read, Qt", qtRead);
    std::printf("%-52s %9.1f ms\n", "write", write);
    std::printf("%-52s %9.1f ms\n", "write, Qt", qtWrite);
    row("reading, times as fast as Qt", qtRead / read, "x", 4, true);
    row("writing, times as fast as Qt", qtWrite / write, "x", 3, true);
    row("reading, peak memory with the file's contents", readMemory, "MB", 3 * textSize, false);
    row("writing, peak memory beside the document", writeMemory, "MB", textSize + 16, false);
    row("encoding 1,000 strokes of 100 points", encodeSmall, "ms", 5, false);
    row("encoding 10,000 strokes of 100 points", encodeLarge, "ms", 60, false);
    return isAllMet ? EXIT_SUCCESS : EXIT_FAILURE;
}
