// A long series of user actions: strokes of changing speed, undo and redo, scrolling, zooming,
// selecting and moving. The same in each run.

#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

class Series {
public:
    Series(RealWindow& real, Bench& bench)
        : real_(real), bench_(bench), sight_(real.inSight()), random_(4) {}

    void run(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            real_.document().lineWidth = std::floor(random_.between(2, 20));
            real_.document().brushOpacity = random_.between(0, 1) < 0.7 ? 1 : 0.4;
            bench_.hand.perform(stroke());
            if (round % 3 == 1) press(random_.between(0, 1) < 0.6 ? "Undo" : "Redo");
            if (round % 5 == 2) scroll();
            if (round % 7 == 3) zoom();
            if (round % 6 == 4) moveStroke();
        }
    }

private:
    /// Moves between random places like a hand: slow at each place, fast between them, with a
    /// little tremor.
    std::vector<HandAct> stroke() {
        constexpr double tremor = 0.6;
        const int pieces = static_cast<int>(random_.between(2, 5));
        Point from = somewhere();
        std::vector<QPoint> way;
        for (int piece = 0; piece < pieces; ++piece) {
            const Point to = somewhere();
            const Point bend = somewhere();
            const double length = std::hypot(to.x - from.x, to.y - from.y);
            const int events = static_cast<int>(std::clamp(length / 12, 10.0, 50.0));
            for (int i = 0; i < events; ++i) {
                const double t = static_cast<double>(i) / events;
                const double s = t * t * t * (10 - 15 * t + 6 * t * t);
                const double side = 0.3 * 2 * s * (1 - s);
                const auto along = [&](double a, double b, double c) {
                    return a + s * (b - a) + side * (c - (a + b) / 2) +
                           random_.between(-tremor, tremor);
                };
                way.push_back(
                    real_.onScreen({along(from.x, to.x, bend.x) / real_.document().zoom,
                                    along(from.y, to.y, bend.y) / real_.document().zoom}));
            }
            from = to;
        }
        auto acts = dragThrough(way);
        acts.front().pause = 250'000;  // a pause before the stroke
        return acts;
    }

    void press(const char* button) {
        auto acts = clickAt(real_.control(button).center());
        for (HandAct& act : acts)
            act.pause = 80'000;
        bench_.hand.perform(acts);
    }

    void scroll() {
        constexpr int notches = 4;
        const QPoint place = real_.onScreen({100, 100});
        std::vector<HandAct> acts;
        for (const std::uint8_t wheel : {std::uint8_t{5}, std::uint8_t{4}})
            for (int i = 0; i < notches; ++i)
                for (const auto kind : {HandAct::Kind::press, HandAct::Kind::release})
                    acts.push_back({.kind = kind,
                                    .button = wheel,
                                    .x = static_cast<std::int16_t>(place.x()),
                                    .y = static_cast<std::int16_t>(place.y()),
                                    .pause = 20'000});
        bench_.hand.perform(acts);
    }

    void zoom() {
        const QRect slider = real_.control("Zoom");
        const QPoint actualSize = slider.center() - QPoint(slider.width() / 4, 0);
        std::vector<QPoint> way;
        for (int x = 0; x <= 8; ++x)
            way.push_back(actualSize + QPoint(x, 0));
        for (int x = 8; x >= 0; --x)
            way.push_back(actualSize + QPoint(x, 0));
        bench_.hand.perform(dragThrough(way));
        real_.document().zoom = 1;
    }

    void moveStroke() {
        DrawingDocument& document = real_.document();
        const Layer& layer = document.layers.get()[0];
        if (layer.strokes.isEmpty()) return;
        const PointList& points = layer.strokes[layer.strokes.size() - 1].points;
        const QPoint at = real_.onScreen(points[points.size() / 2]);
        document.isSelectTool = true;
        std::vector<QPoint> way;
        for (int i = 0; i < 30; ++i)
            way.push_back(at + QPoint(5 * i, static_cast<int>(20 * std::sin(i / 6.0))));
        bench_.hand.perform(dragThrough(way));
        document.isSelectTool = false;
        document.selectedStrokeIndex = std::nullopt;
    }

    Point somewhere() {
        return {random_.between(20, sight_.width - 20), random_.between(20, sight_.height - 20)};
    }

    RealWindow& real_;
    Bench& bench_;
    CanvasSize sight_;
    Random random_;
};

}  // namespace

void replay(Bench& bench) {
    constexpr CanvasSize canvas{1280, 720};
    for (const int strokes : {0, 100'000}) {
        RealWindow real(RealWindow::Sheet::dismissed);
        real.show(scribbles(static_cast<std::size_t>(strokes), canvas), canvas);
        bench.meter.start();
        Series(real, bench).run(bench.isQuick ? 4 : 18);
        Meter::settle();
        const auto costs = bench.meter.stop();
        const QJsonObject about{{"row", "replay"}, {"strokes", strokes}};
        bench.report(about + summary(costs, QEvent::MouseMove));
    }
}

}  // namespace marlevo
