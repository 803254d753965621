#include "platform/qt/QtSleepingClock.h"

#include <QScopedPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace marlevo {

namespace {

/// For objects that may be emitting a signal when their owner is destroyed.
template <typename Object>
using DeletedLater = std::unique_ptr<Object, QScopedPointerDeleteLater>;

/// A timer of the system. For the event loop it is a file that becomes readable.
class SystemSleep final : public SleepingClock::Sleep {
public:
    SystemSleep(int timer, std::function<void()> completion)
        : timer_(timer), notifier_(new QSocketNotifier(timer, QSocketNotifier::Read)) {
        QSocketNotifier* const notifier = notifier_.get();
        QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                         [notifier, completion = std::move(completion)] {
                             notifier->setEnabled(false);
                             completion();
                         });
    }
    ~SystemSleep() override {
        notifier_->setEnabled(false);
        ::close(timer_);
    }
    SystemSleep(const SystemSleep&) = delete;
    SystemSleep& operator=(const SystemSleep&) = delete;

private:
    int timer_;
    DeletedLater<QSocketNotifier> notifier_;
};

class PlainSleep final : public SleepingClock::Sleep {
public:
    PlainSleep(std::chrono::nanoseconds duration, std::function<void()> completion)
        : timer_(new QTimer) {
        timer_->setSingleShot(true);
        QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), std::move(completion));
        timer_->start(std::chrono::ceil<std::chrono::milliseconds>(duration));
    }
    ~PlainSleep() override { timer_->stop(); }
    PlainSleep(const PlainSleep&) = delete;
    PlainSleep& operator=(const PlainSleep&) = delete;

private:
    DeletedLater<QTimer> timer_;
};

/// The descriptor of a running timer, negative if the system has no more timers.
int startSystemTimer(std::chrono::nanoseconds duration) {
    const int timer = ::timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    if (timer < 0) return timer;
    // A time of zero would disarm the timer.
    const auto time = std::max(duration, std::chrono::nanoseconds(1));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    itimerspec due{};
    due.it_value.tv_sec = seconds.count();
    due.it_value.tv_nsec = (time - seconds).count();
    ::timerfd_settime(timer, 0, &due, nullptr);
    return timer;
}

}  // namespace

std::unique_ptr<SleepingClock::Sleep> QtSleepingClock::sleep(std::chrono::nanoseconds duration,
                                                             std::function<void()> completion) {
    const int timer = startSystemTimer(duration);
    if (timer < 0) return std::make_unique<PlainSleep>(duration, std::move(completion));
    return std::make_unique<SystemSleep>(timer, std::move(completion));
}

}  // namespace marlevo
