#pragma once

#include "bench/window/Hand.h"
#include "bench/window/Meter.h"

#include <QJsonObject>
#include <QStringList>

namespace marlevo {

/// The parameters of all measurements.
struct Bench {
    Hand& hand;
    Meter& meter;
    QStringList arguments;  ///< after the measurement's name

    /// Fewer events, for a quick estimate.
    bool isQuick = false;

    /// Writes one line of results, a JSON object.
    void report(const QJsonObject& result) const;
};

/// The costs of the events of one kind as members of a result: the processor time of the process
/// (median and mean), that of the user-interface thread (median and 99th percentile) and the wall
/// time from the event to the painted window if it was painted, all in milliseconds.
QJsonObject summary(const std::vector<EventCost>& costs, QEvent::Type type);

/// The members of both objects.
QJsonObject operator+(QJsonObject a, const QJsonObject& b);

// The measurements, each in the file of its name.
void measureDrawing(Bench& bench);
void measureLongStroke(Bench& bench);
void measureEditing(Bench& bench);
void measureUndoing(Bench& bench);
void measureFirstShow(Bench& bench);
void measureZooming(Bench& bench);
void measureMemory(Bench& bench);
void measureStart(Bench& bench);
void makeDocument(Bench& bench);
void replay(Bench& bench);

}  // namespace marlevo
