#include "bench/window/Meter.h"

#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <ctime>

namespace marlevo {

namespace {

double milliseconds(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

bool isOfMouse(QEvent::Type type) {
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress ||
           type == QEvent::MouseButtonRelease || type == QEvent::Wheel;
}

double quantile(std::vector<double> values, double share) {
    if (values.empty()) return 0;
    const auto last = static_cast<double>(values.size() - 1);
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(std::ceil(share * last));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

}  // namespace

Meter::Clocks Meter::Clocks::now() {
    return {milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID),
            milliseconds(CLOCK_PROCESS_CPUTIME_ID)};
}

bool Meter::notify(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    // Qt sends an event of the server to the window, which sends it to a widget.
    if (isRunning_ && isOfMouse(type) && receiver->isWindowType())
        arrivals_.push_back({type, Clocks::now(), -1});
    if (type == QEvent::Paint && receiver == watched_) isWatchedPainted_ = true;
    // A window paints its changed part on an update request, and its whole area on an expose event.
    const bool paints = type == QEvent::UpdateRequest || type == QEvent::Expose;
    if (!paints) return QApplication::notify(receiver, event);

    isWatchedPainted_ = false;
    const bool result = QApplication::notify(receiver, event);
    const double end = milliseconds(CLOCK_MONOTONIC);
    if (watched_ != nullptr && !isWatchedPainted_) return result;
    ++paints_;
    for (auto arrival = arrivals_.rbegin(); arrival != arrivals_.rend() && arrival->painted < 0;
         ++arrival)
        arrival->painted = end;
    return result;
}

void Meter::start() {
    arrivals_.clear();
    isRunning_ = true;
}

std::vector<EventCost> Meter::stop() {
    isRunning_ = false;
    arrivals_.push_back({QEvent::None, Clocks::now(), -1});
    std::vector<EventCost> costs;
    for (std::size_t i = 0; i + 1 < arrivals_.size(); ++i) {
        const Arrival& arrival = arrivals_[i];
        const Clocks& next = arrivals_[i + 1].clocks;
        costs.push_back(
            {.type = arrival.type,
             .process = next.process - arrival.clocks.process,
             .ui = next.thread - arrival.clocks.thread,
             .untilPainted = arrival.painted < 0 ? -1 : arrival.painted - arrival.clocks.wall});
    }
    arrivals_.clear();
    return costs;
}

void Meter::settle() {
    constexpr int pause = 150;
    constexpr double idle = 3;
    double before = 0;
    double after = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
    do {
        before = after;
        QEventLoop loop;
        QTimer::singleShot(pause, &loop, &QEventLoop::quit);
        loop.exec();
        after = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
    } while (after - before > idle);
}

double median(std::vector<double> values) { return quantile(std::move(values), 0.5); }
double percentile99(std::vector<double> values) { return quantile(std::move(values), 0.99); }

}  // namespace marlevo
