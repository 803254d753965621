#include "platform/qt/KeyRepeatFilter.h"

#include <QKeyEvent>

namespace marlevo {

bool KeyRepeatFilter::eventFilter(QObject* receiver, QEvent* event) {
    // A window gets each event first, then hands it on to its widgets.
    if (!receiver->isWindowType()) return false;
    if (event->type() == QEvent::KeyRelease) {
        const auto& release = static_cast<const QKeyEvent&>(*event);
        releasedKey_ = release.key();
        releaseTime_ = release.timestamp();
    } else if (event->type() == QEvent::ShortcutOverride) {
        const auto& press = static_cast<const QKeyEvent&>(*event);
        if (press.key() == releasedKey_ && press.timestamp() == releaseTime_) {
            event->accept();
            return true;
        }
    }
    return false;
}

}  // namespace marlevo
