// Dragging the zoom slider over many strokes.

#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <numeric>

namespace marlevo {

void measureZooming(Bench& bench) {
    constexpr CanvasSize canvas{1280, 720};
    for (const int strokes : {10'000, 100'000}) {
        RealWindow real(RealWindow::Sheet::dismissed);
        real.show(scribbles(static_cast<std::size_t>(strokes), canvas), canvas);

        const QRect slider = real.control("Zoom");
        const int step = bench.isQuick ? 8 : 3;
        std::vector<QPoint> way;
        for (int x = slider.left(); x <= slider.right(); x += step)
            way.emplace_back(x, slider.center().y());
        for (int x = slider.right(); x >= slider.left(); x -= step)
            way.emplace_back(x, slider.center().y());
        const auto acts = dragThrough(way);
        // One step is one frame: the next event follows when this one has been painted.
        std::vector<double> frames;
        const double zoomBefore = real.document().zoom;
        double zoomMost = zoomBefore;
        for (const HandAct& act : acts) {
            const std::size_t before = bench.meter.paints();
            bench.meter.start();
            bench.hand.perform({act});
            // A step that does not move the knob paints nothing.
            const QDeadlineTimer deadline(50);
            while (bench.meter.paints() == before && !deadline.hasExpired())
                QCoreApplication::processEvents();
            for (const EventCost& cost : bench.meter.stop())
                if (cost.isPainted()) frames.push_back(cost.untilPainted);
            zoomMost = std::max(zoomMost, real.document().zoom.get());
        }
        if (zoomMost == zoomBefore) qFatal("the slider did not move");
        const double sum = std::accumulate(frames.begin(), frames.end(), 0.0);
        bench.report({{"row", "zoom"},
                      {"strokes", strokes},
                      {"frames", static_cast<int>(frames.size())},
                      {"mean", sum / static_cast<double>(frames.size())},
                      {"most", *std::ranges::max_element(frames)}});
    }
}

}  // namespace marlevo
