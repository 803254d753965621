#pragma once

#include <QApplication>

#include <vector>

namespace marlevo {

/// What one event of the mouse cost, in milliseconds, from its arrival to that of the next one.
struct EventCost {
    QEvent::Type type{};
    double process = 0;        ///< processor time of all the program's threads
    double ui = 0;             ///< processor time of the user-interface thread
    double untilPainted = -1;  ///< wall time until the window showed it; −1 if it showed nothing
    bool isPainted() const { return untilPainted >= 0; }
};

/// An application that notes what handling the events of the mouse costs.
class Meter final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Only paints of this widget count from now on; null for any.
    void watch(const QObject* widget) { watched_ = widget; }

    void start();
    std::vector<EventCost> stop();

    /// How many paints there were so far.
    std::size_t paints() const { return paints_; }

    /// Runs the event loop until the program has nothing to do any more.
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

/// The middle value and that below which 99 of 100 lie.
double median(std::vector<double> values);
double percentile99(std::vector<double> values);

}  // namespace marlevo
