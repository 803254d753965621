#include "platform/qt/QtMainQueue.h"

#include <QTest>
#include <QThread>

#include <memory>
#include <thread>
#include <vector>

using namespace marlevo;

class QtMainQueueTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workOfAnotherThreadRunsHereInItsOrder() {
        QtMainQueue queue;
        std::vector<int> ran;
        std::vector<int> expected;
        for (int i = 0; i < 200; ++i)
            expected.push_back(i);
        std::thread([&] {
            for (int i = 0; i < 200; ++i) {
                queue.post([&ran, i] {
                    if (QThread::currentThread() == qApp->thread()) ran.push_back(i);
                });
            }
        }).join();
        QVERIFY(ran.empty());
        QTRY_COMPARE(ran, expected);
    }

    void workWaitsForTheCurrentEventAndEndsWithTheQueue() {
        auto queue = std::make_unique<QtMainQueue>();
        int ran = 0;
        queue->post([&] { ++ran; });
        QCOMPARE(ran, 0);
        QTRY_COMPARE(ran, 1);
        queue->post([&] { ++ran; });
        queue.reset();
        QTest::qWait(20);
        QCOMPARE(ran, 1);
    }
};

QTEST_MAIN(QtMainQueueTests)
#include "QtMainQueueTests.moc"
