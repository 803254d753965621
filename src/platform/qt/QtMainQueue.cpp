#include "platform/qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace marlevo {

namespace {

class WorkEvent final : public QEvent {
public:
    explicit WorkEvent(std::function<void()> work) : QEvent(kind()), work_(std::move(work)) {}

    static Type kind() {
        static const int registered = registerEventType();
        return static_cast<Type>(registered);
    }

    void run() const { work_(); }

private:
    std::function<void()> work_;
};

}  // namespace

void QtMainQueue::post(std::function<void()> work) {
    // The event loop takes ownership.
    QCoreApplication::postEvent(&receiver_, new WorkEvent(std::move(work)));
}

bool QtMainQueue::Receiver::event(QEvent* event) {
    if (event->type() != WorkEvent::kind()) return QObject::event(event);
    static_cast<const WorkEvent*>(event)->run();
    return true;
}

}  // namespace marlevo
