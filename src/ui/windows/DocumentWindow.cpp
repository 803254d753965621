#include "ui/windows/DocumentWindow.h"

#include "ui/windows/ContentView.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/MenuCommands.h"

#include <QCloseEvent>
#include <QDialog>
#include <QMessageBox>
#include <QScreen>

namespace marlevo {

namespace {

constexpr QSize smallestContent(700, 500);

// The part of the screen for the desktop's panels and the window's frame.
constexpr QSize screenReserve(20, 60);

Services withPanels(Services services, FilePanels& panels) {
    if (services.filePanels == nullptr) services.filePanels = &panels;
    return services;
}

}  // namespace

DocumentWindow::DocumentWindow(MarlevoApp& app)
    : filePanels_(*this), content_(std::make_unique<ContentView>(
                              withPanels(app.services(), filePanels_), app.notifications())),
      menus_(std::make_unique<MenuCommands>(app, document(), this)) {
    setMenuBar(menus_.get());
    setCentralWidget(content_.get());
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(&content_->closeGuard(), &WindowAccessor::Coordinator::kept, this,
            &DocumentWindow::kept);
    connect(content_.get(), &ContentView::showNewCanvasChanged, this, &DocumentWindow::followSheet);
    followSheet();

    content_->setMinimumSize(smallestContent);
    const QSize room = screen()->availableSize() - screenReserve;
    resize(sizeHint().boundedTo(room).expandedTo(smallestContent));
}

DocumentWindow::~DocumentWindow() = default;

DrawingDocument& DocumentWindow::document() { return content_->document(); }

QWidget& DocumentWindow::canvasView() { return content_->canvasView(); }

void DocumentWindow::followSheet() {
    using Cover = MenuCommands::Cover;
    menus_->setCover(content_->showNewCanvas() ? Cover::sheet : Cover::none);
}

void DocumentWindow::closeDismissingPanels() {
    for (QDialog* const panel : findChildren<QDialog*>(Qt::FindDirectChildrenOnly))
        if (panel->isVisible() && !qobject_cast<QMessageBox*>(panel)) panel->reject();
    if (isVisible()) close();
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
    QMainWindow::closeEvent(event);
    if (event->isAccepted()) Q_EMIT closed();
}

}  // namespace marlevo
