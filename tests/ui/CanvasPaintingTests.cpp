#include "render/RasterCompositing.h"
#include "render/ScreenPicture.h"
#include "tests/ui/RunningApp.h"
#include "tools/Selection.h"
#include "ui/canvas/CanvasScrollArea.h"

#include <QScreen>

#include <cmath>
#include <limits>

using namespace marlevo;

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QObject& watched) { watched.installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

void drawSomething(DrawingDocument& document) {
    document.lineWidth = 5;
    document.brushOpacity = 0.5;
    beginStroke(document, {-20, 40});
    for (int i = 0; i < 60; ++i)
        addPointToStroke(document, {i * 5.3, 100 + 80 * std::sin(i / 5.0)});
    endStroke(document);
    document.isShapeTool = true;
    beginStroke(document, {150.25, 30.5});
    addPointToStroke(document, {320, 150.75});
    endStroke(document);
}

}  // namespace

class CanvasPaintingTests : public QObject {
    Q_OBJECT

    struct Setting : RunningApp {
        QWidget& view = window.canvasView();

        Setting() { document.canvasSize = {300, 200}; }

        /// Handles posted events and paints at once instead of with the next frame.
        void settle() {
            QCoreApplication::processEvents();
            QEvent dueNow(QEvent::UpdateRequest);
            QCoreApplication::sendEvent(&window, &dueNow);
        }

        /// The screen's pixels of the canvas and of `margin` points around it.
        QImage shot(int margin = 0) {
            settle();
            const QImage image = window.screen()->grabWindow(window.winId()).toImage();
            const double ratio = view.devicePixelRatioF();
            const QRectF place = QRectF(view.mapTo(&window, QPointF()), view.size())
                                     .adjusted(-margin, -margin, margin, margin);
            return image.copy(QRectF(place.topLeft() * ratio, place.size() * ratio).toAlignedRect())
                .convertToFormat(QImage::Format_RGB32);
        }
    };

private Q_SLOTS:
    void theScreenShowsThePicturesOwnPixels() {
        Setting s;
        s.document.backgroundColor = {0.9, 0.8, 0.4, 1};
        drawSomething(s.document);
        beginStroke(s.document, {30, 150});
        addPointToStroke(s.document, {280, 160});
        for (const double zoom : {1.0, 0.7, 1.6}) {
            s.document.zoom = zoom;
            const double scale = zoom * s.view.devicePixelRatioF();
            const QPointF corner = s.view.mapTo(&s.window, QPointF()) * s.view.devicePixelRatioF();
            QVERIFY2(corner == corner.toPoint(), "the canvas begins inside a device pixel");

            const QImage seen = s.shot();
            QImage expected(seen.size(), QImage::Format_ARGB32_Premultiplied);
            ImageCache images(nullptr);
            ScreenPicture picture(images);
            picture.update(sceneOf(s.document, scale));
            picture.paint({expected.bits(),
                           expected.bytesPerLine(),
                           {0, 0, expected.width(), expected.height()},
                           PixelOrder::bgra});
            // Inside the rounded corners and the edges that may end within a pixel.
            const QRect inside = seen.rect().adjusted(4, 4, -4, -4);
            QVERIFY(seen.copy(inside) ==
                    expected.copy(inside).convertToFormat(QImage::Format_RGB32));
        }
    }

    void afterEachChangeTheWindowShowsWhatPaintingItAllAnewWould() {
        Setting s;
        const auto verify = [&](const char* change) {
            const QImage seen = s.shot();
            s.view.update();
            if (seen != s.shot()) QFAIL(change);
        };
        drawSomething(s.document);
        s.document.isShapeTool = false;
        verify("strokes");
        beginStroke(s.document, {30, 150});
        addPointToStroke(s.document, {280, 160});
        verify("a stroke in progress");
        endStroke(s.document);
        s.document.isSelectTool = true;
        selectStroke(s.document, {155, 155});
        QVERIFY(selectedStrokeBoundingRect(s.document));
        verify("a selection");
        beginSelectDrag(s.document);
        updateSelectDrag(s.document, {-20.5, 17});
        verify("a moved selection");
        s.document.zoom = 1.3;
        updateSelectDrag(s.document, {-40, 20});
        verify("a moved selection at another zoom");
        endSelectDrag(s.document);
        selectStroke(s.document, {290, 5});
        verify("no selection");
        s.document.isSelectTool = false;
        s.document.isEyeDropper = true;
        verify("the eyedropper");
        s.document.isEyeDropper = false;
        s.document.undo();
        verify("undo");
        s.document.canvasSize = {200, 210};
        s.document.showGrid = true;
        verify("another size");
        s.view.hide();
        s.document.undo();
        s.view.show();
        verify("hidden for a while");
        s.document.redo();
        verify("redo");
    }

    void cornersAreRoundAndTheShadowFallsDownwards() {
        Setting s;
        s.document.backgroundColor = {1, 0, 0, 1};
        const QImage seen = s.shot(CanvasScrollArea::margin);
        const int margin = qRound(CanvasScrollArea::margin * s.view.devicePixelRatioF());
        const int middle = seen.width() / 2;
        const QRgb desk = s.window.palette().color(QPalette::Window).rgb();
        const auto darkness = [&](int x, int y) { return qGray(desk) - qGray(seen.pixel(x, y)); };

        QVERIFY(seen.pixel(margin, margin) != qRgb(255, 0, 0));
        QCOMPARE(seen.pixel(middle, margin), qRgb(255, 0, 0));
        QCOMPARE(seen.pixel(middle, seen.height() - 1 - margin), qRgb(255, 0, 0));
        QCOMPARE(seen.pixel(1, 1), desk);
        const int above = darkness(middle, margin - 1);
        const int below = darkness(middle, seen.height() - margin);
        QVERIFY(above > 0 && below > above);
    }

    void aTransparentBackgroundShowsTheDesk() {
        Setting s;
        s.document.backgroundIsTransparent = true;
        const QImage seen = s.shot();
        QCOMPARE(seen.pixel(seen.rect().center()),
                 s.window.palette().color(QPalette::Window).rgb());
    }

    void onlyWhatWasShownCausesARedraw() {
        Setting s;
        s.settle();
        PaintCounter paints(s.view);
        s.document.lineWidth = 9;
        s.document.isEraser = true;
        s.document.exportFormat = ExportFormat::bmp;
        s.document.showGrid = false;
        s.settle();
        QCOMPARE(paints.count, 0);
        s.document.showGrid = true;
        QTRY_COMPARE(paints.count, 1);
        beginStroke(s.document, {10, 10});
        addPointToStroke(s.document, {40, 10});
        QTRY_COMPARE(paints.count, 2);
    }

    void canvasSizesOfAnyKindGiveAViewOfPossibleSize() {
        Setting s;
        constexpr double infinity = std::numeric_limits<double>::infinity();
        for (const CanvasSize size : {CanvasSize{0, 0},
                                      {-50, 300},
                                      {NAN, 200},
                                      {0.3, 0.3},
                                      {1e9, 50},
                                      {1e300, 1e300},
                                      {infinity, -infinity}}) {
            s.document.canvasSize = size;
            s.settle();
            QVERIFY(s.view.width() >= 0 && s.view.width() <= QWIDGETSIZE_MAX);
            QVERIFY(s.view.height() >= 0 && s.view.height() <= QWIDGETSIZE_MAX);
        }
        s.document.canvasSize = {300, 200};
        QCOMPARE(s.view.size(), QSize(300, 200));
    }
};

QTEST_MAIN(CanvasPaintingTests)
#include "CanvasPaintingTests.moc"
