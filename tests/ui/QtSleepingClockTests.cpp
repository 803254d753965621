#include "platform/qt/QtSleepingClock.h"

#include <QElapsedTimer>
#include <QTest>

#include <sys/resource.h>
#include <unistd.h>

using namespace marlevo;
using std::chrono::milliseconds;

class QtSleepingClockTests : public QObject {
    Q_OBJECT

    /// Sleeps again and again as a loop does, each time from within the completion.
    struct Loop {
        explicit Loop(int times) : timesLeft(times) { sleep(); }
        void sleep() {
            current = clock.sleep(milliseconds(10), [this] {
                if (--timesLeft > 0)
                    sleep();
                else
                    current.reset();
            });
        }

        QtSleepingClock clock;
        int timesLeft;
        std::unique_ptr<SleepingClock::Sleep> current;
    };

private Q_SLOTS:
    void sleepsAsLongAsAskedAndOnlyOnce() {
        QElapsedTimer time;
        time.start();
        int completed = 0;
        const auto sleep = QtSleepingClock().sleep(milliseconds(60), [&] { ++completed; });
        QTRY_COMPARE(completed, 1);
        QVERIFY(time.elapsed() >= 60);
        QTest::qWait(30);
        QCOMPARE(completed, 1);

        const auto none = QtSleepingClock().sleep(milliseconds(0), [&] { ++completed; });
        QCOMPARE(completed, 1);
        QTRY_COMPARE(completed, 2);
    }

    void aDroppedSleepDoesNotComplete() {
        int completed = 0;
        auto sleep = QtSleepingClock().sleep(milliseconds(5), [&] { ++completed; });
        QTest::qSleep(20);
        sleep.reset();
        QTest::qWait(20);
        QCOMPARE(completed, 0);
    }

    void completionsMaySleepAgainAndEndTheirSleep() {
        Loop loop(5);
        QTRY_COMPARE(loop.timesLeft, 0);
        QVERIFY(!loop.current);
    }

    void sleepsAlsoWhenTheSystemHasNoTimerLeft() {
        rlimit before{};
        ::getrlimit(RLIMIT_NOFILE, &before);
        const int next = ::dup(0);
        ::close(next);
        const rlimit none{static_cast<rlim_t>(next), before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
        Loop loop(3);
        ::setrlimit(RLIMIT_NOFILE, &before);
        QTRY_COMPARE(loop.timesLeft, 0);
    }
};

QTEST_GUILESS_MAIN(QtSleepingClockTests)
#include "QtSleepingClockTests.moc"
