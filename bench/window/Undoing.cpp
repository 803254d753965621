// Returning to a picture that was shown before: undo and redo of long strokes, hiding and showing
// a layer, the grid; on an empty page and among 100,000 strokes.

#include "bench/window/Press.h"
#include "bench/window/Scene.h"
#include "tools/StrokeCapture.h"

#include <cmath>
#include <numbers>

namespace marlevo {

namespace {

constexpr CanvasSize canvas{1280, 720};
constexpr auto released = QEvent::MouseButtonRelease;

/// A wave 300 pixels wide and 500 pixels high.
std::vector<QPoint> wave(RealWindow& real, double left) {
    constexpr int events = 60;
    constexpr double turns = 1.5;
    std::vector<QPoint> way;
    for (int i = 0; i <= events; ++i) {
        const double share = static_cast<double>(i) / events;
        const double across = std::sin(share * turns * 2 * std::numbers::pi);
        way.push_back(real.onScreen({left + 150 + 150 * across, 100 + 500 * share}));
    }
    return way;
}

void measureLongStrokes(Bench& bench, RealWindow& real, const QJsonObject& about) {
    const int rounds = bench.isQuick ? 3 : 12;
    bench.hand.perform(dragThrough(wave(real, 100)));
    std::vector<EventCost> undos;
    std::vector<EventCost> redos;
    for (int i = 0; i < rounds; ++i) {
        undos.push_back(press(bench, real, "Undo"));
        redos.push_back(press(bench, real, "Redo"));
    }
    bench.report(about + QJsonObject{{"row", "undo long"}} + summary(undos, released));
    bench.report(about + QJsonObject{{"row", "redo long"}} + summary(redos, released));

    std::vector<EventCost> zoomed;
    for (int i = 0; i < rounds; ++i) {
        for (const double zoom : {2.0, 1.0}) {
            real.document().zoom = zoom;
            Meter::settle();
        }
        zoomed.push_back(press(bench, real, "Undo"));
        press(bench, real, "Redo");
    }
    bench.report(about + QJsonObject{{"row", "undo zoomed"}} + summary(zoomed, released));

    for (int i = 1; i < 10; ++i)
        bench.hand.perform(dragThrough(wave(real, 100 + 80 * i)));
    std::vector<EventCost> ten;
    for (int i = 0; i < 10; ++i)
        ten.push_back(press(bench, real, "Undo"));
    bench.report(about + QJsonObject{{"row", "undo ten"}} + summary(ten, released));
}

/// Draws more strokes over all of the canvas than their pixels are kept.
void measureBeyondBound(Bench& bench, RealWindow& real, const QJsonObject& about) {
    constexpr std::size_t pointsPerStroke = 400;
    const int strokes = 120;
    Random random(5);
    for (int i = 0; i < strokes; ++i) {
        const std::vector<Point> way = scribble(random, pointsPerStroke, canvas);
        beginStroke(real.document(), way.front());
        for (const Point point : way)
            addPointToStroke(real.document(), point);
        endStroke(real.document());
        QCoreApplication::processEvents();
    }
    Meter::settle();
    std::vector<EventCost> undos;
    for (int i = 0; i < strokes; ++i)
        undos.push_back(press(bench, real, "Undo"));
    bench.report(about + QJsonObject{{"row", "undo beyond bound"}} + summary(undos, released));
}

/// The first time there and back is not reported.
void measureSwitching(Bench& bench, const QJsonObject& about, const char* row,
                      const std::function<void()>& change) {
    const int rounds = bench.isQuick ? 4 : 12;
    untilPainted(bench, change);
    untilPainted(bench, change);
    std::vector<EventCost> costs;
    for (int i = 0; i < rounds; ++i)
        costs.push_back(untilPainted(bench, change));
    bench.report(about + QJsonObject{{"row", row}} + summary(costs, QEvent::None));
}

}  // namespace

void measureUndoing(Bench& bench) {
    for (const int strokes : {0, 100'000}) {
        const QJsonObject about{{"strokes", strokes}};
        RealWindow real(RealWindow::Sheet::dismissed);
        real.show(scribbles(static_cast<std::size_t>(strokes), canvas), canvas);
        DrawingDocument& document = real.document();
        if (strokes > 0)
            measureSwitching(bench, about, "hide again",
                             [&] { document.toggleLayerVisibility(0); });
        measureSwitching(bench, about, "grid again",
                         [&] { document.showGrid = !document.showGrid; });
        measureLongStrokes(bench, real, about);
        measureBeyondBound(bench, real, about);
    }
}

}  // namespace marlevo
