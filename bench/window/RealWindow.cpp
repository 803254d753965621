#include "bench/window/RealWindow.h"

#include <QScreen>
#include <QTest>

#include <algorithm>

namespace marlevo {

RealWindow::RealWindow(Sheet sheet, const std::vector<std::filesystem::path>& drawings)
    : app_({.mainQueue = &mainQueue_,
            .imageCodec = &imageCodec_,
            .flushQueue = &flushQueue_,
            .backgroundQueue = &backgroundQueue_,
            .strings = &strings_}) {
    app_.openWindows(drawings);
    window_ = app_.documentWindows().front();
    if (sheet == Sheet::showing) return;
    static_cast<Meter*>(qApp)->watch(&window_->canvasView());
    if (!QTest::qWaitForWindowActive(window_)) qFatal("the window was not shown");
    window_->content().setShowNewCanvas(false);
    Meter::settle();
}

void RealWindow::show(LayerList layers, const CanvasSize& canvas) {
    DrawingDocument& drawing = document();
    drawing.canvasSize = canvas;
    drawing.zoom = 1;
    drawing.layers = std::move(layers);
    drawing.activeLayerIndex = 0;
    const QSize room = window_->screen()->availableSize();
    const QSize wanted = window_->sizeHint().boundedTo(room);
    window_->setGeometry(QRect(window_->screen()->availableGeometry().topLeft(), wanted));
    Meter::settle();
}

QPoint RealWindow::onScreen(Point canvasPoint) {
    const double zoom = document().zoom;
    return window_->canvasView().mapToGlobal(
        QPointF(canvasPoint.x * zoom, canvasPoint.y * zoom).toPoint());
}

QRect RealWindow::control(const QString& name) {
    for (const QWidget* const widget : window_->findChildren<QWidget*>())
        if (widget->accessibleName() == name && widget->isVisible())
            return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
    qFatal("no control %s", qPrintable(name));
}

CanvasSize RealWindow::inSight() {
    const QRect sight = window_->canvasView().visibleRegion().boundingRect();
    return {static_cast<double>(sight.right()), static_cast<double>(sight.bottom())};
}

}  // namespace marlevo
