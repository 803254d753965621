#include "platform/qt/TerminationSignals.h"

#include <QEventLoop>
#include <QTest>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <sys/wait.h>
#include <unistd.h>

using namespace marlevo;

class TerminationSignalsTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(::pipe2(work_.data(), O_NONBLOCK), 0); }

    void theFirstSignalWaitsForTheWorkAndTheSecondDoesNot() {
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            QCOMPARE(statusAfter({signal}), signal);
            QVERIFY(workIsDone());
        }
        QCOMPARE(statusAfter({SIGINT, SIGTERM}), SIGTERM);
        QVERIFY(!workIsDone());
    }

    void cleanupTestCase() {
        for (const int end : work_)
            ::close(end);
    }

private:
    /// The status of a child in which these signals are raised before its event loop runs.
    int statusAfter(std::initializer_list<int> signals) const {
        const pid_t child = ::fork();
        if (child == 0) {
            QEventLoop loop;
            const TerminationSignals handled([&] { ::write(work_[1], "x", 1); });
            for (const int signal : signals)
                std::raise(signal);
            loop.exec();
            _exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    }

    bool workIsDone() const {
        char done = 0;
        return ::read(work_[0], &done, 1) == 1;
    }

    std::array<int, 2> work_{};
};

QTEST_GUILESS_MAIN(TerminationSignalsTests)
#include "TerminationSignalsTests.moc"
