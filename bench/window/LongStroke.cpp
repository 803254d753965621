// One event of the mouse at the 100th and at the 10,000th point of a single stroke.

#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"
#include "tools/StrokeCapture.h"

#include <algorithm>

namespace marlevo {

namespace {

/// Draws the stroke's points from `from` on.
QJsonObject drawOn(Bench& bench, RealWindow& real, const std::vector<Point>& way, std::size_t from,
                   std::size_t count) {
    std::vector<HandAct> acts;
    for (std::size_t i = from; i < from + count; ++i) {
        const QPoint place = real.onScreen(way[i]);
        acts.push_back(
            {.x = static_cast<std::int16_t>(place.x()), .y = static_cast<std::int16_t>(place.y())});
    }
    Meter::settle();
    bench.meter.start();
    bench.hand.perform(acts);
    Meter::settle();
    return summary(bench.meter.stop(), QEvent::MouseMove);
}

}  // namespace

void measureLongStroke(Bench& bench) {
    constexpr CanvasSize canvas{1280, 720};
    constexpr std::size_t length = 10'000;
    const std::size_t measured = bench.isQuick ? 40 : 160;
    for (const double width : {3.0, 160.0}) {
        for (const double opacity : {1.0, 0.5}) {
            RealWindow real(RealWindow::Sheet::dismissed);
            real.show({Layer("Background")}, canvas);
            DrawingDocument& document = real.document();
            document.lineWidth = width;
            document.brushOpacity = opacity;
            Random random(3);
            const std::vector<Point> way = scribble(random, length + measured, canvas);

            std::vector<HandAct> press = clickAt(real.onScreen(way.front()));
            press.pop_back();
            bench.hand.perform(press);
            const auto add = [&](std::size_t from, std::size_t to) {
                for (std::size_t i = from; i < to; ++i)
                    addPointToStroke(document, way[i]);
            };
            const QJsonObject about{{"row", "long stroke"}, {"width", width}, {"opacity", opacity}};
            const std::size_t early = 100 - std::min<std::size_t>(100, measured / 2);
            add(1, early);
            bench.report(about + QJsonObject{{"point", 100}} +
                         drawOn(bench, real, way, early, measured));
            const std::size_t late = length - measured / 2;
            add(early + measured, late);
            bench.report(about + QJsonObject{{"point", static_cast<int>(length)}} +
                         drawOn(bench, real, way, late, measured));
            std::vector<HandAct> release = clickAt(real.onScreen(way.back()));
            release.erase(release.begin(), release.end() - 1);
            bench.hand.perform(release);
        }
    }
}

}  // namespace marlevo
