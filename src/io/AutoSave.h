#pragma once

#include "platform/SleepingClock.h"

#include <atomic>
#include <chrono>
#include <memory>

namespace marlevo {

class DrawingDocument;

/// Writes a document to its file every 30 seconds, changed or not, as long as the user's setting is
/// on and the document has a file. Writing is left to the write queue. Ends with the destruction of
/// this object. Does nothing for a document without a clock or preferences.
class AutoSave {
public:
    /// The pause after each cycle.
    static constexpr std::chrono::seconds interval{30};

    /// The document must outlive this object.
    explicit AutoSave(DrawingDocument& document);
    AutoSave(const AutoSave&) = delete;
    AutoSave& operator=(const AutoSave&) = delete;

    /// True if a cycle writes the document.
    bool isOn() const;

    /// True if it is on and the write of the last cycle has succeeded.
    bool isWritten() const { return isOn() && *isWritten_; }

    /// One cycle now, without a change of the next one's time.
    void runCycle();

private:
    void sleep();

    DrawingDocument& document_;
    /// Shared with a write that may end after this object.
    std::shared_ptr<std::atomic<bool>> isWritten_ = std::make_shared<std::atomic<bool>>(false);
    std::unique_ptr<SleepingClock::Sleep> sleep_;
};

}  // namespace marlevo
