#include "platform/qt/QtItemProviders.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtSleepingClock.h"
#include "tests/support/TemporaryFolder.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTest>
#include <QThread>
#include <QUrl>

#include <future>
#include <memory>
#include <numeric>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace marlevo;
using std::chrono::milliseconds;

class QtDesktopTests : public QObject {
    Q_OBJECT

    /// The items of a drop from a file manager.
    static std::vector<std::unique_ptr<ItemProvider>> dropped(const QByteArray& addresses) {
        QMimeData data;
        data.setData("text/uri-list", addresses);
        return itemProviders(data);
    }

    static QByteArray loaded(ItemProvider& item) {
        auto delivery = std::make_shared<std::promise<QByteArray>>();
        item.loadImage([delivery](const auto& file) {
            delivery->set_value(file ? QByteArray(reinterpret_cast<const char*>(file->data()),
                                                  qsizetype(file->size()))
                                     : "none");
        });
        return delivery->get_future().get();
    }

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
    void workOfAnotherThreadRunsHereInItsOrder() {
        QtMainQueue queue;
        std::vector<int> ran;
        std::vector<int> expected(200);
        std::iota(expected.begin(), expected.end(), 0);
        std::thread([&] {
            for (const int i : expected) {
                queue.post([&ran, i] {
                    if (QThread::currentThread() == qApp->thread()) ran.push_back(i);
                });
            }
        }).join();
        QVERIFY(ran.empty());
        QTRY_COMPARE(ran, expected);
    }

    void workEndsWithItsQueue() {
        auto queue = std::make_unique<QtMainQueue>();
        bool ran = false;
        queue->post([&] { ran = true; });
        QtMainQueue later;
        bool ranLater = false;
        later.post([&] { ranLater = true; });
        queue.reset();
        QTRY_VERIFY(ranLater);
        QVERIFY(!ran);
    }

    void theClipboardOffersThePictureAsExportWritesIt() {
        QtPasteboard().setImage(RasterImage(2, 1, {0, 0, 0, 0, 128, 0, 0, 128}));
        const QMimeData& offer = *QGuiApplication::clipboard()->mimeData();
        QCOMPARE(offer.formats(),
                 (QStringList{"image/png", "image/tiff", "image/bmp", "image/jpeg"}));
        const auto picture = [&](const QString& form) {
            return QImage::fromData(offer.data(form));
        };
        QCOMPARE(picture("image/png").pixel(0, 0), qRgba(0, 0, 0, 0));
        QCOMPARE(picture("image/tiff").pixelColor(1, 0), QColor(0, 0, 255, 128));
        QCOMPARE(picture("image/bmp").pixel(0, 0), qRgb(255, 255, 255));
        QVERIFY(qGreen(picture("image/jpeg").pixel(0, 0)) > 200);
    }

    void filesAreReadWhateverTheBytesOfTheirNames() {
        const TemporaryFolder folder;
        const std::string png = "\x89PNG\r\n\x1a\n and so on";
        writeText(folder / "b\xe4 #.png", "not looked at");
        writeText(folder / "picture", png);
        writeText(folder / "text\xe4.txt", png);
        std::filesystem::create_directory(folder / "folder.png");
        QByteArray addresses;
        for (const char* name :
             {"b%E4%20%23.png", "picture", "text%E4.txt", "folder.png", "no.png"})
            addresses +=
                "file://" + QByteArray::fromStdString(folder.path().string()) + '/' + name + "\r\n";
        const auto items = dropped(addresses);
        QCOMPARE(items.size(), std::size_t(5));
        QVERIFY(items[0]->offersImage());
        QVERIFY(items[1]->offersImage());
        for (const int other : {2, 3, 4})
            QVERIFY(!items[std::size_t(other)]->offersImage());
        QCOMPARE(loaded(*items[0]), QByteArray("not looked at"));
        QCOMPARE(loaded(*items[1]), QByteArray::fromStdString(png));
        QCOMPARE(loaded(*items[3]), QByteArray("none"));
        QCOMPARE(loaded(*items[4]), QByteArray("none"));
    }

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

QTEST_MAIN(QtDesktopTests)
#include "QtDesktopTests.moc"
