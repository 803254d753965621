#include "tests/ui/Pointer.h"
#include "tests/ui/RunningApp.h"
#include "ui/canvas/CanvasScrollArea.h"
#include "ui/windows/PresetRow.h"

using namespace marlevo;

namespace {

/// Whether the frame around the drawing area shows that the canvas has the focus.
bool isFramed(QWidget& window) {
    auto* const area = window.findChild<CanvasScrollArea*>();
    const QColor edge = area->grab().toImage().pixelColor(0, area->height() / 2);
    return edge == area->palette().color(QPalette::Highlight);
}

/// A key as a keyboard sends it, through the window.
void type(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::qWait(2);  // a press at the very time of the last release would be a repeat
    QTest::keyClick(window.windowHandle(), key, modifiers);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

QString focused() { return QApplication::focusWidget()->accessibleName(); }

}  // namespace

class FocusTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSheetTakesTheFocusAndTheCanvasFollows() {
        RunningApp s;
        s.window.content().setShowNewCanvas(true);
        const auto rows = s.window.findChildren<PresetRow*>();
        QCOMPARE(QApplication::focusWidget(), rows.front());
        type(s.window, Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), rows[1]);
        type(s.window, Qt::Key_Return);
        QVERIFY(rows[1]->isChecked());
        type(s.window, Qt::Key_Tab);
        QCOMPARE(qobject_cast<QAbstractButton*>(QApplication::focusWidget())->text(),
                 QString("Custom size"));
        type(s.window, Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), &s.window.canvasView());
        QVERIFY(isFramed(s.window));
    }

    void theCanvasShowsItsFocusToTheKeyboard() {
        RunningApp s;
        Pointer pointer(s.window.canvasView());
        pointer.press({50, 50});
        pointer.release({50, 50});
        QCOMPARE(QApplication::focusWidget(), &s.window.canvasView());
        QVERIFY(!isFramed(s.window));
        type(s.window, Qt::Key_Left);
        QVERIFY(isFramed(s.window));
        // Away to another window and back.
        QWidget other;
        other.show();
        RunningApp::activate(other);
        QVERIFY(!isFramed(s.window));
        RunningApp::activate(s.window);
        QVERIFY(isFramed(s.window));
    }

    void tabGoesRoundTheWholeWindow() {
        RunningApp s;
        s.window.canvasView().setFocus();
        QStringList reached;
        do {
            type(s.window, Qt::Key_Tab);
            reached << focused();
        } while (QApplication::focusWidget() != &s.window.canvasView() && reached.size() < 50);
        for (const char* name : {"Save", "Color", "Size", "Draw", "Grid", "Layers", "Zoom"})
            QVERIFY2(reached.contains(name), name);
    }

    void whatIsOpenedOrUsedUpByAKeyKeepsTheKeyboard() {
        RunningApp s;
        control<QAbstractButton>(s.window, "Export").setFocus();
        type(s.window, Qt::Key_Space);
        QCOMPARE(focused(), QString("PNG"));
        type(s.window, Qt::Key_Escape);
        QCOMPARE(focused(), QString("Export"));

        drawStroke(s.document);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        control<QAbstractButton>(s.window, "Undo").setFocus();
        type(s.window, Qt::Key_Space);
        QCOMPARE(focused(), QString("Redo"));
        type(s.window, Qt::Key_Space);
        QCOMPARE(focused(), QString("Undo"));
    }
};

QTEST_MAIN(FocusTests)
#include "FocusTests.moc"
