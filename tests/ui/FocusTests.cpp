#include "tests/ui/Pointer.h"
#include "tests/ui/RunningApp.h"
#include "ui/canvas/CanvasScrollArea.h"
#include "ui/windows/PresetRow.h"

#include <QAccessible>

using namespace marlevo;

namespace {

/// Whether the frame around the drawing area shows that the canvas has the focus.
bool isFramed(QWidget& window) {
    auto* const area = window.findChild<CanvasScrollArea*>();
    const QColor edge = area->grab().toImage().pixelColor(0, area->height() / 2);
    return edge == area->palette().color(QPalette::Highlight);
}

/// The name of the focused widget.
QString focused() {
    return QAccessible::queryAccessibleInterface(QApplication::focusWidget())
        ->text(QAccessible::Name);
}

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
        QStringList buttons;
        std::vector<int> places;
        for (int i = 0; i < 2; ++i) {
            type(s.window, Qt::Key_Tab);
            buttons << qobject_cast<QAbstractButton*>(QApplication::focusWidget())->text();
            places.push_back(QApplication::focusWidget()->x());
        }
        QVERIFY(places[0] < places[1]);
        buttons.sort();  // their order is the desktop's
        QCOMPARE(buttons, QStringList({"Cancel", "Create Canvas"}));
        type(s.window, Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), &s.window.canvasView());
        QVERIFY(isFramed(s.window));
    }

    void tabGoesRoundTheWholeWindowAndStopsOnceInEachGroup() {
        RunningApp s;
        s.document.addLayer();
        for (const char* name : {"Layers", "Color red", "Eraser"})
            control<QAbstractButton>(s.window, name).click();
        QTRY_VERIFY(!control<QAbstractButton>(s.window, "Add layer").visibleRegion().isEmpty());
        s.window.content().setFocus();
        QStringList reached;
        while (!reached.contains(focused()) && reached.size() < 60) {
            reached << focused();
            type(s.window, Qt::Key_Tab);
        }
        QCOMPARE(reached, QStringList({"Canvas",
                                       "Zoom",
                                       "100%",
                                       "Fit",
                                       "Undo",
                                       "Save",
                                       "Export",
                                       "Color red",
                                       "Size",
                                       "Opacity",
                                       "Eraser",
                                       "Line",
                                       "View",
                                       "Grid",
                                       "Background color",
                                       "Transparent background",
                                       "Layers",
                                       "Layer 2",
                                       "Hide layer: Layer 2",
                                       "Add layer",
                                       "Delete layer",
                                       "Move layer down"}));
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
        // To another window and back.
        QWidget other;
        other.show();
        RunningApp::activate(other);
        QVERIFY(!isFramed(s.window));
        RunningApp::activate(s.window);
        QVERIFY(isFramed(s.window));
    }

    void theFocusMovesToWhatAKeyOpensAndFromAButtonItDisables() {
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
