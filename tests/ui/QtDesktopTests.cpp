#include "platform/qt/KeyRepeats.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>
#include <QTest>
#include <QThread>
#include <QWindow>

#include <memory>
#include <numeric>
#include <thread>
#include <vector>

using namespace marlevo;

class QtDesktopTests : public QObject {
    Q_OBJECT

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

    void aPressAtTheTimeOfItsKeysReleaseRunsNoShortcut() {
        QWindow window;
        KeyRepeatFilter filter;
        const auto withheld = [&](QEvent::Type type, Qt::Key key, quint64 time) {
            QKeyEvent event(type, key, Qt::ControlModifier);
            event.setTimestamp(time);
            return filter.eventFilter(&window, &event);
        };
        QVERIFY(!withheld(QEvent::ShortcutOverride, Qt::Key_Z, 100));
        QVERIFY(!withheld(QEvent::KeyRelease, Qt::Key_Z, 760));
        QVERIFY(withheld(QEvent::ShortcutOverride, Qt::Key_Z, 760));
        QVERIFY(!withheld(QEvent::ShortcutOverride, Qt::Key_G, 760));
        QVERIFY(!withheld(QEvent::ShortcutOverride, Qt::Key_Z, 800));
    }
};

QTEST_MAIN(QtDesktopTests)
#include "QtDesktopTests.moc"
