#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace marlevo {

/// Lets the program finish its work when SIGTERM, SIGHUP or SIGINT ends it.
///
/// The first of these signals is handled by the event loop: `beforeEnd` runs on the user-interface
/// thread, and then the program ends by this signal, so that its parent sees the usual status. A
/// second signal ends the program at once. One object a process.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> beforeEnd);

    /// Restores the default handling.
    ~TerminationSignals();

    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    void finish();

    std::function<void()> beforeEnd_;
    int readEnd_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace marlevo
