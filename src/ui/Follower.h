#pragma once

#include "model/DrawingDocument.h"

#include <functional>

namespace marlevo {

/// Keeps something on screen in step with a document: runs `show` at once, and again after each
/// change of a property that `show` read the last time.
class Follower {
public:
    Follower(DrawingDocument& document, std::function<void()> show);

    /// Runs `show` now, for when the thing shown was changed by somebody else.
    void refresh() { reader_.observe(show_); }

private:
    std::function<void()> show_;
    Reader reader_;
};

}  // namespace marlevo
