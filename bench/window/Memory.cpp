// The whole process with 100,000 strokes drawn one after the other, each a step of the history.

#include "bench/window/Bench.h"
#include "bench/window/ProcessMemory.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"
#include "tools/StrokeCapture.h"

namespace marlevo {

void measureMemory(Bench& bench) {
    constexpr CanvasSize canvas{1280, 720};
    constexpr std::size_t strokes = 100'000;
    constexpr std::size_t points = 40;
    RealWindow real(RealWindow::Sheet::dismissed);
    real.show({Layer("Background")}, canvas);
    const double empty = residentBytes();

    DrawingDocument& document = real.document();
    Random random(1);
    for (std::size_t i = 0; i < strokes; ++i) {
        const std::vector<Point> way = scribble(random, points, canvas);
        beginStroke(document, way.front());
        for (std::size_t j = 1; j < points; ++j)
            addPointToStroke(document, way[j]);
        endStroke(document);
    }
    Meter::settle();
    bench.report({{"row", "memory"},
                  {"strokes", static_cast<int>(strokes)},
                  {"points", static_cast<double>(strokes * points * sizeof(Point))},
                  {"empty", empty},
                  {"resident", residentBytes()}});
}

}  // namespace marlevo
