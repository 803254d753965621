#include "tests/ui/Pointer.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/MarlevoApp.h"

#include <memory>

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

private Q_SLOTS:
    void aDragKeepsEveryPositionAndTheReleaseAddsNone() {
        Setting s;
        s.pointer.press({100, 50});
        QCOMPARE((*s.document.currentStroke)->points.size(), std::size_t{1});
        s.pointer.move({101, 50});
        s.pointer.move({101, 50.5});
        s.pointer.move({-30, -40});
        s.pointer.release({-30, -40});
        const std::vector<Point> expected{{100, 50}, {101, 50}, {101, 50.5}, {-30, -40}};
        QVERIFY(s.drawn() == expected);
        QVERIFY(!s.document.currentStroke->has_value());
        s.pointer.move({10, 10});
        QVERIFY(!s.document.currentStroke->has_value());
    }

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
        s.pointer.move({50, 20});
        s.pointer.release({50, 20});
        const std::vector<Point> expected{{20, 20}, {50, 20}};
        QVERIFY(s.drawn() == expected);
    }

    void toolsThatDoNotDrawLeaveThePictureAlone() {
        Setting s;
        const auto drag = [&s] {
            s.pointer.press({20, 20});
            s.pointer.move({60, 60});
            s.pointer.release({60, 60});
        };
        s.document.isSelectTool = true;
        drag();
        s.document.isSelectTool = false;
        s.document.isFillTool = true;
        drag();
        s.document.isFillTool = false;
        s.document.isEyeDropper = true;
        drag();
        QVERIFY(!s.document.canUndo());
        QVERIFY(!s.document.currentStroke->has_value());
    }

    void aDragWhoseWindowLosesTheFocusEnds() {
        Setting s;
        s.pointer.press({20, 20});
        s.pointer.move({60, 20});
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QTRY_VERIFY(!s.document.currentStroke->has_value());
        QCOMPARE(s.drawn().size(), std::size_t{2});
        s.pointer.move({90, 20});
        s.pointer.release({90, 20});
        QCOMPARE(s.drawn().size(), std::size_t{2});
    }

    void aPressThatStaysNearIsAClick() {
        PointerDrag drag;
        drag.press({10, 10});
        drag.moveTo({12, 11});
        QVERIFY(drag.release());

        drag.press({10, 10});
        drag.moveTo({40, 10});
        drag.moveTo({10, 10});
        QVERIFY2(!drag.release(), "coming back does not make a drag a click");
        QVERIFY(!drag.isActive());
    }
};

QTEST_MAIN(CanvasPointerTests)
#include "CanvasPointerTests.moc"
