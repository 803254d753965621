#include "platform/qt/LatinShortcuts.h"
#include "tests/ui/RunningApp.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QProcess>
#include <QScopeGuard>

using namespace marlevo;

namespace {

/// A key with Ctrl as an X11 or Wayland server reports it.
struct NativeKey {
    int key;
    quint32 code;
    quint32 symbol;
    quint32 state = 0;

    void type(QWidget& window, Qt::KeyboardModifiers others = {}) const {
        static quint64 time = 0;
        for (const QEvent::Type step :
             {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(step, key, Qt::ControlModifier | others, code, symbol, state);
            if (step == QEvent::ShortcutOverride) event.ignore();
            event.setTimestamp(++time);
            QCoreApplication::sendEvent(window.windowHandle(), &event);
        }
    }
};

void selectTheStroke(DrawingDocument& document) {
    document.isSelectTool = true;
    document.selectedLayerID = document.layers->front().id;
    document.selectedStrokeIndex = 0;
}

}  // namespace

class KeyMonitorTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void controlKeysActOnTheWindowsDocument() {
        RunningApp s;
        drawStroke(s.document);
        type(s.window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(strokeCount(s.document.layers), std::size_t{0});
        // With Shift the key makes "Z": the menu redoes, once.
        drawStroke(s.document);
        drawStroke(s.document);
        type(s.window, Qt::Key_Z, Qt::ControlModifier);
        type(s.window, Qt::Key_Z, Qt::ControlModifier);
        type(s.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(strokeCount(s.document.layers), std::size_t{1});

        type(s.window, Qt::Key_G, Qt::ControlModifier);
        QVERIFY(s.document.showGrid);
        type(s.window, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(s.document.showGrid);
        type(s.window, Qt::Key_N, Qt::ControlModifier);
        QVERIFY(s.window.content().showNewCanvas());
    }

    void theEraserKeyLeavesTheSelectToolAndItsSelectionOnly() {
        RunningApp s;
        drawStroke(s.document);
        selectTheStroke(s.document);
        s.document.isFillTool = true;
        type(s.window, Qt::Key_E, Qt::ControlModifier);
        QVERIFY(s.document.isEraser && !s.document.isSelectTool && s.document.isFillTool);
        QVERIFY(!s.document.selectedLayerID->has_value());
        QVERIFY(!s.document.selectedStrokeIndex->has_value());
        type(s.window, Qt::Key_E, Qt::ControlModifier);
        QVERIFY(!s.document.isEraser);
    }

    void zoomStepsStayWithinTheRange() {
        RunningApp s;
        const auto zoomAfter = [&](Qt::Key key, double before) {
            s.document.zoom = before;
            type(s.window, key, Qt::ControlModifier);
            return s.document.zoom.get();
        };
        QCOMPARE(zoomAfter(Qt::Key_Equal, 1), 1.2);
        QCOMPARE(zoomAfter(Qt::Key_Equal, 4.5), 5.0);
        QCOMPARE(zoomAfter(Qt::Key_Minus, 1.2), 1.0);
        QCOMPARE(zoomAfter(Qt::Key_Minus, 0.11), 0.1);
        QCOMPARE(zoomAfter(Qt::Key_Plus, 1), 1.2);
    }

    void keysThatMakePunctuationInAnotherScriptCountAsLetters() {
        const auto setLayouts = [](const char* layouts) {
            return QProcess::execute("setxkbmap", {layouts}) == 0;
        };
        if (!setLayouts("ara")) QSKIP("There is no setxkbmap.");
        const auto restored = qScopeGuard([&] { setLayouts("us"); });
        RunningApp s;
        LatinShortcuts latin;
        qApp->installEventFilter(&latin);
        drawStroke(s.document);
        s.document.undo();
        // With Shift the key makes "~".
        NativeKey{.key = Qt::Key_AsciiTilde, .code = 52, .symbol = '~'}.type(s.window,
                                                                             Qt::ShiftModifier);
        QCOMPARE(strokeCount(s.document.layers), qint64{1});
        // Beside a Latin layout, whose letters count. The second is in use.
        QVERIFY(setLayouts("fr,il"));
        NativeKey{.key = Qt::Key_Apostrophe, .code = 25, .symbol = '\'', .state = 1u << 13}.type(
            s.window);
        QCOMPARE(strokeCount(s.document.layers), qint64{0});
        NativeKey{.key = Qt::Key_Comma, .code = 58, .symbol = ','}.type(s.window);
        QVERIFY(!s.window.isMinimized());
    }

    void capsLockAndTheScriptOfTheKeyboardDoNotCount() {
        RunningApp s;
        LatinShortcuts latin;
        qApp->installEventFilter(&latin);
        NativeKey{.key = Qt::Key_E, .code = 26, .symbol = 'E'}.type(s.window);
        QVERIFY(s.document.isEraser);
        // A Latin layout beside another: Qt finds the letter and leaves the symbol.
        NativeKey{.key = Qt::Key_E, .code = 26, .symbol = 0x6d5}.type(s.window);
        QVERIFY(!s.document.isEraser);

        const NativeKey russianE{.key = 0x423, .code = 26, .symbol = 0x6d5};
        const NativeKey greekK{.key = 0x39a, .code = 45, .symbol = 0x7ea};
        const NativeKey thaiEqual{.key = 0xe0a, .code = 21, .symbol = 0xdaa};
        const NativeKey arabicA{.key = 0x634, .code = 38, .symbol = 0x5d4};
        const NativeKey turkishI{.key = 0x131, .code = 26, .symbol = 0x2b9};
        russianE.type(s.window);
        QVERIFY(s.document.isEraser);
        turkishI.type(s.window);
        QVERIFY(s.document.isEraser);
        thaiEqual.type(s.window);
        QCOMPARE(s.document.zoom.get(), 1.2);
        drawStroke(s.document);
        greekK.type(s.window);
        QCOMPARE(strokeCount(s.document.layers), qint64{0});
        greekK.type(s.window);
        QCOMPARE(strokeCount(s.document.layers), qint64{0});

        s.window.content().setShowNewCanvas(true);
        button<QCheckBox>(s.window, "Custom size").setChecked(true);
        auto& width = control<QLineEdit>(s.window, "Width");
        width.setFocus();
        width.deselect();
        arabicA.type(s.window);
        QCOMPARE(width.selectedText(), width.text());
    }

    void aHeldKeyActsOnce() {
        RunningApp s;
        const auto send = [&](QEvent::Type type, quint64 time, bool isMarked) {
            for (const QEvent::Type step : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
                if (type == QEvent::KeyRelease && step == QEvent::KeyPress) break;
                QKeyEvent event(type == QEvent::KeyRelease ? type : step, Qt::Key_Equal,
                                Qt::ControlModifier, "=", isMarked);
                event.setTimestamp(time);
                QCoreApplication::sendEvent(s.window.windowHandle(), &event);
            }
        };
        send(QEvent::KeyPress, 100, false);
        QCOMPARE(s.document.zoom.get(), 1.2);
        send(QEvent::KeyRelease, 600, true);
        send(QEvent::KeyPress, 600, true);
        // The pair that reaches the program before it is known to be one.
        send(QEvent::KeyRelease, 630, false);
        send(QEvent::KeyPress, 630, false);
        QCOMPARE(s.document.zoom.get(), 1.2);
        send(QEvent::KeyRelease, 700, false);
        send(QEvent::KeyPress, 800, false);
        QCOMPARE(s.document.zoom.get(), 1.2 * 1.2);
    }

    void bothDeleteKeysDeleteTheSelectedStrokeOnly() {
        for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete}) {
            RunningApp s;
            drawStroke(s.document);
            s.document.isSelectTool = true;
            type(s.window, key);
            selectTheStroke(s.document);
            s.document.isSelectTool = false;
            type(s.window, key);
            QCOMPARE(strokeCount(s.document.layers), std::size_t{1});
            s.document.isSelectTool = true;
            type(s.window, key, Qt::ShiftModifier);
            QCOMPARE(strokeCount(s.document.layers), std::size_t{0});
        }
    }

    void noKeyReachesTheDocumentBehindTheSheet() {
        RunningApp s;
        drawStroke(s.document);
        selectTheStroke(s.document);
        s.window.content().setShowNewCanvas(true);
        button<QCheckBox>(s.window, "Custom size").setChecked(true);
        auto& width = control<QLineEdit>(s.window, "Width");
        width.setFocus();
        width.setText("12");
        type(s.window, Qt::Key_Backspace);
        QCOMPARE(width.text(), QString("1"));
        type(s.window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(width.text(), QString("12"));
        for (const Qt::Key key : {Qt::Key_Z, Qt::Key_E, Qt::Key_G, Qt::Key_Equal, Qt::Key_K})
            type(s.window, key, Qt::ControlModifier);
        type(s.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(strokeCount(s.document.layers), std::size_t{1});
        QVERIFY(!s.document.isEraser && !s.document.showGrid);
        QCOMPARE(s.document.zoom.get(), 1.0);

        type(s.window, Qt::Key_N, Qt::ControlModifier);
        type(s.window, Qt::Key_Escape);
        QVERIFY(!s.window.content().showNewCanvas());
        type(s.window, Qt::Key_Delete);
        QCOMPARE(strokeCount(s.document.layers), std::size_t{0});
        QVERIFY(command(s.window, "Undo").isEnabled());
    }
};

QTEST_MAIN(KeyMonitorTests)
#include "KeyMonitorTests.moc"
