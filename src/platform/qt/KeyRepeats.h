#pragma once

#include <QtGlobal>

class QKeyEvent;

namespace marlevo {

/// Distinguishes repeats of a held key from new presses. Needs all keyboard events in their order.
///
/// X11 sends a repeat as a release and a press with the same time stamp. Qt marks such a pair as a
/// repeat only if both have arrived when it reads the first. This class recognises the other pairs.
class KeyRepeats {
public:
    void release(const QKeyEvent& event);

    bool isRepeat(const QKeyEvent& press) const;

private:
    int releasedKey_ = 0;
    quint64 releaseTime_ = 0;
};

}  // namespace marlevo
