#include "tests/ui/Pointer.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/MarlevoApp.h"

#include <QDialog>
#include <QMenu>

using namespace marlevo;

class CanvasPointerTests : public QObject {
    Q_OBJECT

    struct Setting {
        MarlevoApp app{Services{}};
        DocumentWindow window{app};
        DrawingDocument& document = window.document();
        Pointer pointer{window.canvasView()};

        Setting() {
            window.content().setShowNewCanvas(false);
            window.show();
            window.activateWindow();
            if (!QTest::qWaitForWindowActive(&window)) qFatal("no active window");
        }

        /// The points of the layer's only stroke.
        std::vector<Point> drawn() const {
            const StrokeList& strokes = document.layers->front().strokes;
            if (strokes.size() != 1) return {};
            const PointList points = (*strokes.begin()).points;
            return {points.begin(), points.end()};
        }
    };

    using Cut = void (*)(Setting&);

private Q_SLOTS:
    void positionsAreDividedByTheZoomAndKeepTheirFraction() {
        Setting s;
        s.document.zoom = 2;
        s.pointer.press({200.5, 100.25});
        s.pointer.move({300.25, 111.5});
        s.pointer.release({300.25, 111.5});
        const std::vector<Point> expected{{100.25, 50.125}, {150.125, 55.75}};
        QVERIFY(s.drawn() == expected);
    }

    void onlyThePrimaryButtonDraws() {
        Setting s;
        s.pointer.press({20, 20}, Qt::RightButton);
        s.pointer.move({40, 40});
        s.pointer.release({40, 40}, Qt::RightButton);
        QVERIFY(!s.document.canUndo());

        s.pointer.press({20, 20});
        s.pointer.press({20, 20}, Qt::RightButton);
        s.pointer.release({20, 20}, Qt::RightButton);
        QVERIFY(s.document.currentStroke->has_value());
        s.pointer.move({60, 60});
        s.pointer.release({60, 60});
        QCOMPARE(s.drawn().size(), std::size_t{2});
    }

    void theSecondPressOfADoubleClickIsAPress() {
        Setting s;
        s.pointer.press({20, 20});
        s.pointer.release({20, 20});
        s.pointer.press({20, 20});
        QVERIFY(s.document.currentStroke->has_value());
    }

    void aStrokeGoesOnWhenAnotherWindowTakesTheFocus() {
        Setting s;
        s.pointer.press({20, 20});
        s.pointer.move({60, 20});
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        s.pointer.move({90, 20});
        s.pointer.release({90, 20});
        QCOMPARE(s.drawn().size(), std::size_t{3});
    }

    void aPressWhoseReleaseCannotArriveEnds_data() {
        QTest::addColumn<Cut>("cut");
        const auto add = [](const char* name, Cut cut) { QTest::newRow(name) << cut; };
        add("modal panel", [](Setting& s) {
            auto* const panel = new QDialog(&s.window);
            panel->setAttribute(Qt::WA_DeleteOnClose);
            panel->open();
        });
        add("menu", [](Setting& s) { (new QMenu(&s.window))->popup(s.window.pos()); });
        add("hidden view", [](Setting& s) { s.window.canvasView().hide(); });
        add("new-canvas sheet", [](Setting& s) { s.window.content().setShowNewCanvas(true); });
        add("button up", [](Setting& s) { Pointer(s.window.canvasView()).move({70, 20}); });
    }

    void aPressWhoseReleaseCannotArriveEnds() {
        QFETCH(Cut, cut);
        Setting s;
        s.pointer.press({20, 20});
        s.pointer.move({60, 20});
        cut(s);
        QVERIFY(!s.document.currentStroke->has_value());
        QCOMPARE(s.drawn().size(), std::size_t{2});
        s.pointer.move({90, 20});
        s.pointer.release({90, 20});
        QCOMPARE(s.drawn().size(), std::size_t{2});
    }
};

QTEST_MAIN(CanvasPointerTests)
#include "CanvasPointerTests.moc"
