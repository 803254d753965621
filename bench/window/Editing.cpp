// Undo and redo of one stroke, selecting and dragging one, among 100 and among 100,000.

#include "bench/window/Press.h"
#include "bench/window/Scene.h"

#include <cmath>
#include <numbers>

namespace marlevo {

namespace {

constexpr CanvasSize usualCanvas{1280, 720};

/// The place of the edits, which is visible for every canvas size.
constexpr Point place{640, 360};

std::vector<QPoint> circle(RealWindow& real, int events) {
    constexpr double radius = 150;
    constexpr double step = 8;
    std::vector<QPoint> way;
    for (int i = 0; i < events; ++i) {
        const double angle = i * step / radius;
        way.push_back(real.onScreen(
            {place.x + radius * (std::cos(angle) - 1), place.y + radius * std::sin(angle)}));
    }
    return way;
}

void measureHistory(Bench& bench, RealWindow& real, const QJsonObject& about) {
    const int rounds = bench.isQuick ? 3 : 12;
    std::vector<EventCost> undos;
    std::vector<EventCost> redos;
    bench.hand.perform(dragThrough(circle(real, 40)));
    for (int i = 0; i < rounds; ++i) {
        undos.push_back(press(bench, real, "Undo"));
        redos.push_back(press(bench, real, "Redo"));
    }
    bench.report(about + QJsonObject{{"row", "undo"}} + summary(undos, QEvent::MouseButtonRelease));
    bench.report(about + QJsonObject{{"row", "redo"}} + summary(redos, QEvent::MouseButtonRelease));
}

void measureSelection(Bench& bench, RealWindow& real, const QJsonObject& about) {
    DrawingDocument& document = real.document();
    // The stroke to be selected. Drawn last, so that no other stroke is above it.
    bench.hand.perform(dragThrough(circle(real, 20)));
    document.isSelectTool = true;
    bench.hand.perform(clickAt(real.onScreen({60, 40})));
    document.selectedStrokeIndex = std::nullopt;
    document.selectedLayerID = std::nullopt;
    Meter::settle();
    bench.meter.start();
    bench.hand.perform(dragThrough(circle(real, bench.isQuick ? 50 : 250)));
    Meter::settle();
    const auto costs = bench.meter.stop();
    if (!document.selectedStrokeIndex->has_value()) qFatal("no stroke was selected");
    bench.report(about + QJsonObject{{"row", "select"}} + summary(costs, QEvent::MouseButtonPress));
    bench.report(about + QJsonObject{{"row", "drag"}} + summary(costs, QEvent::MouseMove));
    document.isSelectTool = false;
}

void measureAmong(Bench& bench, int strokes, const CanvasSize& canvas, const char* spread) {
    const QJsonObject about{{"strokes", strokes}, {"spread", spread}};
    const LayerList picture = scribbles(static_cast<std::size_t>(strokes), canvas);
    {
        RealWindow real(RealWindow::Sheet::dismissed);
        real.show(picture, canvas);
        measureHistory(bench, real, about);
    }
    RealWindow real(RealWindow::Sheet::dismissed);
    real.show(picture, canvas);
    measureSelection(bench, real, about);
}

}  // namespace

void measureEditing(Bench& bench) {
    constexpr int few = 100;
    constexpr int many = 100'000;
    // As many strokes under each part of the canvas as in the small picture.
    const double side = std::sqrt(static_cast<double>(many) / few);
    const CanvasSize spread{usualCanvas.width * side, usualCanvas.height * side};
    measureAmong(bench, few, usualCanvas, "on 1280 × 720");
    measureAmong(bench, many, spread, "as dense as 100");
    measureAmong(bench, many, usualCanvas, "on 1280 × 720");
}

}  // namespace marlevo
