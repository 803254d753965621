#include "ui/windows/ContentView.h"

#include "io/AutoSave.h"
#include "platform/NotificationCenter.h"
#include "ui/canvas/CanvasScrollArea.h"
#include "ui/canvas/CanvasZoom.h"
#include "ui/canvas/StatusBar.h"
#include "ui/controls/SheetHost.h"
#include "ui/sidebar/SidebarView.h"
#include "ui/windows/KeyMonitor.h"
#include "ui/windows/NewCanvasSheet.h"
#include "ui/windows/WindowTitleUpdater.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

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

struct ContentView::Parts {
    Parts(ContentView& content, NotificationCenter& notifications)
        : columns(&content), sidebar(content.document_, content.images_, &content),
          canvas(content.document_, content.images_, &content),
          statusBar(
              content.document_, [&content] { content.fitToWindow(); }, &content),
          titleUpdater(content.document_, content, [&content] { return content.windowTitle(); }),
          newCanvasRequests(notifications.observe(notification::newCanvas,
                                                  [&content] { content.setShowNewCanvas(true); })) {
    }

    void layOut(ContentView& content);

    QSplitter columns;
    SidebarView sidebar;
    CanvasScrollArea canvas;
    StatusBar statusBar;
    WindowTitleUpdater titleUpdater;
    NotificationCenter::Observation newCanvasRequests;
    QPointer<SheetHost> sheet;
    std::optional<AutoSave> autoSave;
    std::optional<KeyMonitor> keyMonitor;
};

ContentView::ContentView(const Services& services, NotificationCenter& notifications)
    : images_(services.imageCodec), document_(services, &images_), closeGuard_(document_),
      parts_(std::make_unique<Parts>(*this, notifications)) {
    setAutoFillBackground(true);
    parts_->layOut(*this);
    closeGuard_.setup(*this);
    setShowNewCanvas(true);
}

ContentView::~ContentView() = default;

QWidget& ContentView::canvasView() { return parts_->canvas.view(); }

QString ContentView::windowTitle() const {
    const auto& file = document_.currentFileURL.get();
    return file ? QString::fromStdString(file->filename().string()) : tr("Marlevo");
}

bool ContentView::showNewCanvas() const { return !parts_->sheet.isNull(); }

void ContentView::setShowNewCanvas(bool show) {
    if (show == showNewCanvas()) return;
    QPointer<SheetHost>& sheet = parts_->sheet;
    if (show) {
        parts_->canvas.view().interruptGesture();
        sheet = new SheetHost(*this);
        sheet->setSheet(new NewCanvasSheet(document_, [this] { setShowNewCanvas(false); }));
    } else {
        sheet->dismiss();
        sheet.clear();
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

bool ContentView::isSaved() const { return parts_->autoSave && parts_->autoSave->isWritten(); }

void ContentView::saveBeforeEnd() {
    parts_->canvas.view().interruptGesture();
    if (parts_->autoSave) parts_->autoSave->runCycle();
}

// A focus proxy would take all widgets before the canvas out of the Tab order.
void ContentView::focusInEvent(QFocusEvent* event) { parts_->canvas.setFocus(event->reason()); }

void ContentView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!parts_->keyMonitor) firstShown();
}

void ContentView::firstShown() {
    document_.ensureLayers();
    parts_->autoSave.emplace(document_);
    parts_->keyMonitor.emplace(*window(), document_,
                               KeyMonitor::Sheet{.show = [this] { setShowNewCanvas(true); },
                                                 .isShown = [this] { return showNewCanvas(); }});
}

void ContentView::Parts::layOut(ContentView& content) {
    auto* drawing = new QWidget;
    auto* column = new QVBoxLayout(drawing);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(&canvas, 1);
    column->addWidget(&statusBar);

    columns.setChildrenCollapsible(false);
    // The handle takes no room from the canvas. The toolkit still lets the pointer grab it a few
    // points beside it.
    columns.setHandleWidth(0);
    columns.addWidget(&sidebar);
    columns.addWidget(drawing);
    // The order for assistive technology. Without this the splitter lists the first column last.
    drawing->raise();
    columns.handle(1)->raise();
    columns.setStretchFactor(1, 1);
    sidebar.setMaximumWidth(SidebarView::greatestWidth);
    columns.setSizes({sidebar.sizeHint().width(), drawing->sizeHint().width()});

    auto* whole = new QVBoxLayout(&content);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(&columns);
}

}  // namespace marlevo
