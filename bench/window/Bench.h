#pragma once

#include "bench/window/Hand.h"
#include "bench/window/Meter.h"

#include <QJsonObject>
#include <QStringList>

namespace marlevo {

/// What every measurement has at hand.
struct Bench {
    Hand& hand;
    Meter& meter;
    QStringList arguments;  ///< behind the measurement's name

    /// Fewer events, for a first look.
    bool isQuick = false;

    /// Writes one line of results, a JSON object.
    void report(const QJsonObject& result) const;
};

/// The costs of the events of one kind as members of a result: the processor time of the process
/// (median and mean), that of the user-interface thread (median and 99th percentile) and the wall
/// time from the event to the painted window if anything was, all in milliseconds.
QJsonObject summary(const std::vector<EventCost>& costs, QEvent::Type type);

/// Both objects' members.
QJsonObject operator+(QJsonObject a, const QJsonObject& b);

// The measurements, each in the file of its name.
void measureDrawing(Bench& bench);
void measureLongStroke(Bench& bench);
void measureEditing(Bench& bench);
void measureFirstShow(Bench& bench);
void measureZooming(Bench& bench);
void measureMemory(Bench& bench);
void measureStart(Bench& bench);
void makeDocument(Bench& bench);
void replay(Bench& bench);

}  // namespace marlevo
