#pragma once

#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"

#include <functional>

namespace marlevo {

/// The cost of releasing the mouse over the control with this name. Moving to the control and
/// pressing it are not measured.
EventCost press(Bench& bench, RealWindow& real, const QString& control);

/// The cost of a change of the document until it is painted, as that of an event without a type.
EventCost untilPainted(Bench& bench, const std::function<void()>& change);

}  // namespace marlevo
