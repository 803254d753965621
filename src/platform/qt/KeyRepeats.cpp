#include "platform/qt/KeyRepeats.h"

#include <QKeyEvent>

namespace marlevo {

void KeyRepeats::release(const QKeyEvent& event) {
    releasedKey_ = event.key();
    releaseTime_ = event.timestamp();
}

bool KeyRepeats::isRepeat(const QKeyEvent& press) const {
    return press.isAutoRepeat() ||
           (press.key() == releasedKey_ && press.timestamp() == releaseTime_);
}

}  // namespace marlevo
