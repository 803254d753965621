// One event of the mouse during drawing, on pictures of all sizes, compared with a bare Qt widget.

#include "bench/window/BareCanvas.h"
#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"

#include <QTest>

namespace marlevo {

namespace {

constexpr std::size_t eventsPerStroke = 80;

/// Draws strokes over `sight`, a part of the canvas whose corner is at `corner` of the screen.
std::vector<EventCost> drawStrokes(Bench& bench, const CanvasSize& sight, QPoint corner) {
    const int strokes = bench.isQuick ? 2 : 6;
    Random random(2);
    std::vector<EventCost> all;
    for (int i = 0; i < strokes; ++i) {
        std::vector<QPoint> way;
        for (const Point p : scribble(random, eventsPerStroke, sight))
            way.push_back(corner + QPointF(p.x, p.y).toPoint());
        bench.hand.perform(clickAt(way.front()));
        Meter::settle();
        bench.meter.start();
        bench.hand.perform(dragThrough(way));
        Meter::settle();
        const auto costs = bench.meter.stop();
        all.insert(all.end(), costs.begin(), costs.end());
    }
    return all;
}

QString name(const CanvasSize& canvas) {
    return QStringLiteral("%1 × %2").arg(canvas.width).arg(canvas.height);
}

}  // namespace

void measureDrawing(Bench& bench) {
    for (const CanvasSize canvas : {CanvasSize{1280, 720}, CanvasSize{3840, 2160}}) {
        for (const int strokes : {0, 1'000, 10'000, 100'000}) {
            RealWindow real(RealWindow::Sheet::dismissed);
            real.show(scribbles(static_cast<std::size_t>(strokes), canvas), canvas);
            const auto costs = drawStrokes(bench, real.inSight(), real.onScreen({0, 0}));
            const QJsonObject about{
                {"row", "drawing"}, {"canvas", name(canvas)}, {"strokes", strokes}};
            bench.report(about + summary(costs, QEvent::MouseMove));
            bench.report(about + QJsonObject{{"row", "release"}} +
                         summary(costs, QEvent::MouseButtonRelease));
        }
    }
    BareCanvas bare(QSize(1280, 720));
    bench.meter.watch(&bare);
    bare.move(0, 0);
    bare.show();
    if (!QTest::qWaitForWindowActive(&bare)) qFatal("the window was not shown");
    const auto costs = drawStrokes(bench, {1280, 720}, bare.mapToGlobal(QPoint(0, 0)));
    bench.report(QJsonObject{{"row", "drawing"}, {"canvas", "a bare Qt widget"}, {"strokes", 0}} +
                 summary(costs, QEvent::MouseMove));
}

}  // namespace marlevo
