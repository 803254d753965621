#include "ui/windows/ContentView.h"

#include "ui/canvas/CanvasZoom.h"
#include "ui/windows/NewCanvasSheet.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMainWindow>
#include <QVBoxLayout>

#include <algorithm>

namespace marlevo {

namespace {

// For a window without a central widget.
constexpr QSize defaultContent(800, 600);

/// The size without the menu bar, which counts as a part of the window's frame.
QSize contentSize(const QWidget& window) {
    const auto* const frame = qobject_cast<const QMainWindow*>(&window);
    if (frame == nullptr) return window.size();
    const QWidget* const content = frame->centralWidget();
    return content ? content->size() : defaultContent;
}

}  // namespace

ContentView::ContentView(const Services& services, NotificationCenter& notifications)
    : images_(services.imageCodec), document_(services, &images_), columns_(this),
      sidebar_(document_, images_, this), canvas_(document_, images_, this),
      statusBar_(
          document_, [this] { fitToWindow(); }, this),
      closeGuard_(document_), titleUpdater_(document_, *this, [this] { return windowTitle(); }),
      newCanvasRequests_(
          notifications.observe(notification::newCanvas, [this] { setShowNewCanvas(true); })) {
    layOut();
    closeGuard_.setup(*this);
    setShowNewCanvas(true);
}

QString ContentView::windowTitle() const {
    const auto& file = document_.currentFileURL.get();
    return file ? QString::fromStdString(file->filename().string()) : tr("Marlevo");
}

void ContentView::setShowNewCanvas(bool show) {
    if (show == showNewCanvas()) return;
    if (show) {
        canvas_.view().interruptGesture();
        sheet_ = new SheetHost(*this);
        sheet_->setSheet(new NewCanvasSheet(document_, [this] { setShowNewCanvas(false); }));
    } else {
        sheet_->dismiss();
        sheet_.clear();
    }
    Q_EMIT showNewCanvasChanged();
}

void ContentView::fitToWindow() {
    const QWidget* const keyWindow = QApplication::activeWindow();
    if (keyWindow == nullptr) return;
    const double fit = fittingZoom(document_.canvasSize, contentSize(*keyWindow));
    document_.zoom = std::min(maxZoom, fit);
    document_.zoom = std::max(minZoom, document_.zoom.get());
}

void ContentView::saveBeforeEnd() {
    canvas_.view().interruptGesture();
    if (autoSave_) autoSave_->runCycle();
}

// Not by a focus proxy, which takes all widgets before the canvas out of the chain of Tab.
void ContentView::focusInEvent(QFocusEvent* event) { canvas_.setFocus(event->reason()); }

void ContentView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!keyMonitor_) firstShown();
}

void ContentView::firstShown() {
    document_.ensureLayers();
    autoSave_.emplace(document_);
    keyMonitor_.emplace(*window(), document_,
                        KeyMonitor::Sheet{.show = [this] { setShowNewCanvas(true); },
                                          .isShown = [this] { return showNewCanvas(); }});
}

void ContentView::layOut() {
    setAutoFillBackground(true);

    auto* drawing = new QWidget;
    auto* column = new QVBoxLayout(drawing);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(&canvas_, 1);
    column->addWidget(&statusBar_);

    columns_.setChildrenCollapsible(false);
    // The handle takes no room from the canvas; the toolkit gives it a few points to be seized at.
    columns_.setHandleWidth(0);
    columns_.addWidget(&sidebar_);
    columns_.addWidget(drawing);
    // The order for assistive technology; the splitter would leave the first at the end.
    drawing->raise();
    columns_.handle(1)->raise();
    columns_.setStretchFactor(1, 1);
    sidebar_.setMaximumWidth(SidebarView::greatestWidth);
    columns_.setSizes({sidebar_.sizeHint().width(), drawing->sizeHint().width()});

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(&columns_);
}

}  // namespace marlevo
