// Selecting and moving one stroke among few and among many.

#include "model/DrawingDocument.h"
#include "tools/Selection.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

using namespace marlevo;

namespace {

constexpr int strokesAtMost = 100'000;

std::vector<Stroke> randomStrokes(int count) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> x(0, 3840);
    std::uniform_real_distribution<double> y(0, 2160);
    std::uniform_real_distribution<double> step(-8, 8);
    std::vector<Stroke> strokes;
    for (int i = 0; i < count; ++i) {
        std::vector<Point> points{{x(random), y(random)}};
        while (points.size() < 40)
            points.push_back({points.back().x + step(random), points.back().y + step(random)});
        strokes.push_back(
            {PointList(std::move(points)), black, 3, 1, false, false, Stroke::ShapeType::freehand});
    }
    return strokes;
}

template <typename Work>
double microseconds(int times, Work work) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i)
        work(i);
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    return took.count() / times;
}

void measure(int count) {
    DrawingDocument document;
    document.ensureLayers();
    document.layers.modifyAndPublish(
        [&](LayerList& layers) { layers[0].strokes = StrokeList(randomStrokes(count)); });

    std::mt19937 random(2);
    std::uniform_real_distribution<double> x(0, 3840);
    std::uniform_real_distribution<double> y(0, 2160);
    double slowest = 0;
    double sum = 0;
    constexpr int clicks = 500;
    for (int i = 0; i < clicks; ++i) {
        const Point p{x(random), y(random)};
        const double took = microseconds(1, [&](int) { selectStroke(document, p); });
        slowest = std::max(slowest, took);
        sum += took;
    }
    const double miss = microseconds(100, [&](int) { selectStroke(document, {-500, -500}); });

    document.selectedLayerID = document.layers->front().id;
    document.selectedStrokeIndex = count / 2;
    beginSelectDrag(document);
    const double move = microseconds(2000, [&](int i) {
        updateSelectDrag(document, {i * 0.5, 1});
    });
    endSelectDrag(document);
    std::printf("%8d strokes  hit test %8.1f µs (slowest %8.1f, miss %6.1f)  move %6.2f µs\n",
                count, sum / clicks, slowest, miss, move);
}

}  // namespace

int main() {
    for (const int count : {10, 1000, 10'000, strokesAtMost})
        measure(count);
}
