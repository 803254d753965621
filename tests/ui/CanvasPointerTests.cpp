#include "tests/ui/Pointer.h"
#include "tests/ui/RunningApp.h"

#include <QDialog>
#include <QMenu>

#include <utility>
#include <vector>

using namespace marlevo;

class CanvasPointerTests : public QObject {
    Q_OBJECT

    struct Setting : RunningApp {
        Pointer pointer{window.canvasView()};

        /// The points of the layer's only stroke.
        std::vector<Point> drawn() const {
            const StrokeList& strokes = document.layers->front().strokes;
            if (strokes.size() != 1) return {};
            const PointList points = (*strokes.begin()).points;
            return {points.begin(), points.end()};
        }
    };

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

    void aStrokeContinuesWhenAnotherWindowGetsTheFocus() {
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

    void aPressWhoseReleaseCannotArriveEnds() {
        const std::vector<std::pair<const char*, void (*)(Setting&)>> cuts{
            {"modal panel",
             [](Setting& s) {
                 auto* const panel = new QDialog(&s.window);
                 panel->setAttribute(Qt::WA_DeleteOnClose);
                 panel->open();
             }},
            {"menu", [](Setting& s) { (new QMenu(&s.window))->popup(s.window.pos()); }},
            {"hidden view", [](Setting& s) { s.window.canvasView().hide(); }},
            {"new-canvas sheet", [](Setting& s) { s.window.content().setShowNewCanvas(true); }},
            {"button up", [](Setting& s) {
                 Pointer(s.window.canvasView()).move({70, 20});
             }}};
        for (const auto& [name, cut] : cuts) {
            Setting s;
            s.pointer.press({20, 20});
            s.pointer.move({60, 20});
            cut(s);
            QVERIFY2(!s.document.currentStroke->has_value(), name);
            QCOMPARE(s.drawn().size(), std::size_t{2});
            s.pointer.move({90, 20});
            s.pointer.release({90, 20});
            QCOMPARE(s.drawn().size(), std::size_t{2});
        }
    }
};

QTEST_MAIN(CanvasPointerTests)
#include "CanvasPointerTests.moc"
