#include "bench/window/Press.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>

#include <ctime>

namespace marlevo {

EventCost press(Bench& bench, RealWindow& real, const QString& control) {
    auto acts = clickAt(real.control(control).center());
    for (HandAct& act : acts)
        act.pause = 60'000;
    Meter::settle();
    bench.meter.start();
    bench.hand.perform(acts);
    Meter::settle();
    return bench.meter.stop().back();
}

EventCost untilPainted(Bench& bench, const std::function<void()>& change) {
    Meter::settle();
    const std::size_t before = bench.meter.paints();
    const std::clock_t start = std::clock();
    QElapsedTimer wall;
    wall.start();
    change();
    const QDeadlineTimer deadline(10'000);
    while (bench.meter.paints() == before) {
        QCoreApplication::processEvents();
        if (deadline.hasExpired()) qFatal("the change was not painted");
    }
    const double painted = static_cast<double>(wall.nsecsElapsed()) / 1e6;
    const double process = static_cast<double>(std::clock() - start) * 1e3 / CLOCKS_PER_SEC;
    return {.type = QEvent::None, .process = process, .untilPainted = painted};
}

}  // namespace marlevo
