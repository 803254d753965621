#include "tests/ui/RunningApp.h"
#include "tests/ui/SeenControls.h"
#include "ui/canvas/CanvasScrollArea.h"
#include "ui/canvas/CanvasZoom.h"
#include "ui/canvas/StatusBar.h"
#include "ui/controls/SmallButton.h"
#include "ui/sidebar/SidebarView.h"
#include "ui/windows/Translations.h"

#include <QAccessible>
#include <QMenuBar>
#include <QScrollBar>
#include <QSplitter>

using namespace marlevo;

namespace {

QStringList texts(RunningApp& s) {
    QStringList shown;
    for (const TextLabel* label : s.window.findChild<StatusBar*>()->findChildren<TextLabel*>())
        if (label->isVisible()) shown << label->text();
    return shown;
}

}  // namespace

class StatusBarTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itShowsSizeStrokesZoomAndLayer() {
        RunningApp s;
        QCOMPARE(texts(s), QStringList({"1280×720", "multiple_strokes", "100%", "Background"}));
        drawStroke(s.document);
        s.document.isEraser = true;
        // The accessible description of the canvas has the same values.
        auto* canvas = QAccessible::queryAccessibleInterface(&s.window.canvasView());
        QCOMPARE(canvas->role(), QAccessible::Canvas);
        QCOMPARE(canvas->text(QAccessible::Description), "1280 × 720 px, Eraser, single_stroke");
        s.document.canvasSize = {800.9, 1e30};
        s.document.zoom = 0.49375;
        s.document.activeLayerIndex = -1;
        QCOMPARE(texts(s), QStringList({"800×–", "single_stroke", "49%"}));
        s.document.addLayer();
        drawStroke(s.document);
        s.document.toggleLayerVisibility(1);
        QVERIFY(texts(s).contains("multiple_strokes"));
    }

    void showingTheZoomDoesNotChangeIt() {
        RunningApp s;
        s.document.zoom = 0.49375;
        auto& slider = control<ContinuousSlider>(s.window, "Zoom");
        QCOMPARE(slider.realValue(), 0.49375);
        QCOMPARE(s.document.zoom.get(), 0.49375);
        slider.moveTo(7);
        QCOMPARE(s.document.zoom.get(), maxZoom);
        button<SmallButton>(s.window, "100%").click();
        QCOMPARE(s.document.zoom.get(), 1.0);
    }

    void theFittingZoomCountsWithFixedMeasures() {
        QCOMPARE(fittingZoom({1920, 1080}, {1200, 800}), 0.49375);
        QCOMPARE(fittingZoom({100, 740}, {1200, 800}), 1.0);
    }

    void fitTakesTheContentBelowTheMenusAndStaysWithinTheRange() {
        RunningApp s;
        const auto fitted = [&](CanvasSize canvas) {
            s.document.canvasSize = canvas;
            button<SmallButton>(s.window, "Fit").click();
            return s.document.zoom.get();
        };
        QCOMPARE(fitted({100, 100}), maxZoom);
        QCOMPARE(fitted({1e6, 1e6}), minZoom);
        const double height = s.window.height() - s.window.menuBar()->height();
        QCOMPARE(fitted({10, 2000}), (height - 60) / 2000);
    }

    void textsMakeRoomForTheControls() {
        const QFont before = QApplication::font();
        for (const char* const language : {"en", "de", "fr", "es", "ja"}) {
            QLocale::setDefault(QLocale(language));
            const Translations translations;
            RunningApp s;
            const auto& bar = *s.window.findChild<StatusBar*>();
            auto& columns = *s.window.findChild<QSplitter*>();
            s.window.resize(700, 560);
            columns.setSizes({SidebarView::greatestWidth, 700 - SidebarView::greatestWidth});
            for (const int points : {8, 10, 12, 14, 16, 18, 20, 22, 24}) {
                QFont font = before;
                font.setPointSize(points);
                QApplication::setFont(font);
                QCoreApplication::sendPostedEvents();
                QCOMPARE(columns.sizes().first(), SidebarView::greatestWidth);
                QVERIFY(controlsIn(bar).size() >= (points > 10 ? 3 : 5));
                QString faults;
                const auto isRight = [&] {
                    return (faults = faultsIn(bar, {"Background"})).isEmpty();
                };
                QTRY_VERIFY2(isRight(),
                             qPrintable(language + QString::number(points) + ": " + faults));
            }
            QApplication::setFont(before);
        }
        QLocale::setDefault(QLocale::c());
    }

    void aFittedCanvasIsVisibleWithoutScrolling() {
        const QFont before = QApplication::font();
        QFont large = before;
        large.setPointSize(20);
        for (const QFont& font : {before, large}) {
            QApplication::setFont(font);
            RunningApp s;
            auto& columns = *s.window.findChild<QSplitter*>();
            QCOMPARE(columns.sizes().first(), SidebarView::idealWidth);
            const auto& area = *s.window.findChild<CanvasScrollArea*>();
            for (const int sidebar : {220, 237, 252}) {
                columns.setSizes({sidebar, columns.width() - sidebar});
                for (const CanvasSize canvas :
                     {CanvasSize{1920, 1080}, {2480, 350}, {777, 333}, {600, 3000}}) {
                    s.document.canvasSize = canvas;
                    button<SmallButton>(s.window, "Fit").click();
                    QTRY_VERIFY(!area.horizontalScrollBar()->isVisible());
                    QTRY_VERIFY(!area.verticalScrollBar()->isVisible());
                    QVERIFY(area.viewport()->rect().contains(s.window.canvasView().geometry()));
                }
            }
        }
        QApplication::setFont(before);
    }
};

QTEST_MAIN(StatusBarTests)
#include "StatusBarTests.moc"
