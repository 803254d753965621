#include "platform/qt/QtMainQueue.h"

#include <QMetaObject>

namespace marlevo {

void QtMainQueue::post(std::function<void()> work) {
    // Queued also on the user-interface thread itself: the work waits for the current event's end.
    QMetaObject::invokeMethod(&receiver_, std::move(work), Qt::QueuedConnection);
}

}  // namespace marlevo
