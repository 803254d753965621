#pragma once

#include <QtGlobal>

class QKeyEvent;

namespace marlevo {

/// Tells the repeats of a key that is held from new presses. To be shown every event of the
/// keyboard, in order.
///
/// X11 tells a repeat as a release and a press of one time stamp. Qt marks the pair as a repeat
/// only when it has already received both; the pairs that it misses are recognised here.
class KeyRepeats {
public:
    void release(const QKeyEvent& event);

    bool isRepeat(const QKeyEvent& press) const;

private:
    int releasedKey_ = 0;
    quint64 releaseTime_ = 0;
};

}  // namespace marlevo
