#pragma once

#include <QApplication>

#include <vector>

namespace marlevo {

/// The costs of one event of the mouse, in milliseconds, from its arrival to that of the next one.
struct EventCost {
    QEvent::Type type{};
    double process = 0;        ///< processor time of all the program's threads
    double ui = 0;             ///< processor time of the user-interface thread
    double untilPainted = -1;  ///< wall time until the window was painted; −1 if it was not
    bool isPainted() const { return untilPainted >= 0; }
};

/// An application object that measures the handling of mouse events.
class Meter final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// From now on only paints of this widget count; with null, paints of all widgets.
    void watch(const QObject* widget) { watched_ = widget; }

    void start();
    std::vector<EventCost> stop();

    /// The number of paints so far.
    std::size_t paints() const { return paints_; }

    /// Runs the event loop until the program is idle.
    static void settle();

private:
    struct Clocks {
        double wall;
        double thread;
        double process;
        static Clocks now();
    };
    struct Arrival {
        QEvent::Type type;
        Clocks clocks;
        double painted;
    };

    const QObject* watched_ = nullptr;
    std::vector<Arrival> arrivals_;
    bool isRunning_ = false;
    bool isWatchedPainted_ = false;
    std::size_t paints_ = 0;
};

/// The median and the 99th percentile.
double median(std::vector<double> values);
double percentile99(std::vector<double> values);

}  // namespace marlevo
