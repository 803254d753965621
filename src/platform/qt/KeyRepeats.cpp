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

bool KeyRepeatFilter::eventFilter(QObject* receiver, QEvent* event) {
    // Each event is sent to a window first, then by the window to its widgets.
    if (!receiver->isWindowType()) return false;
    if (event->type() == QEvent::KeyRelease) {
        repeats_.release(static_cast<const QKeyEvent&>(*event));
    } else if (event->type() == QEvent::ShortcutOverride) {
        const auto& press = static_cast<const QKeyEvent&>(*event);
        if (!press.isAutoRepeat() && repeats_.isRepeat(press)) {
            event->accept();
            return true;
        }
    }
    return false;
}

}  // namespace marlevo
