#include "platform/qt/KeyRepeatFilter.h"

#include <QKeyEvent>

namespace marlevo {

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
