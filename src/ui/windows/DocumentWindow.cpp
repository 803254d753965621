#include "ui/windows/DocumentWindow.h"

#include "ui/windows/MarlevoApp.h"

#include <QCloseEvent>
#include <QDialog>
#include <QScreen>

namespace marlevo {

namespace {

constexpr QSize smallestContent(700, 500);

// What a desktop's panels and the window's own frame take of the screen.
constexpr QSize screenReserve(20, 60);

Services withPanels(Services services, FilePanels& panels) {
    if (services.filePanels == nullptr) services.filePanels = &panels;
    return services;
}

}  // namespace

DocumentWindow::DocumentWindow(MarlevoApp& app)
    : filePanels_(*this), content_(withPanels(app.services(), filePanels_), app.notifications()),
      menus_(app, document(), this) {
    setMenuBar(&menus_);
    setCentralWidget(&content_);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(&content_.closeGuard(), &WindowAccessor::Coordinator::kept, this,
            &DocumentWindow::kept);
    connect(&content_, &ContentView::showNewCanvasChanged, &menus_, &MenuCommands::setBehindSheet);
    menus_.setBehindSheet(content_.showNewCanvas());

    content_.setMinimumSize(smallestContent);
    const QSize room = screen()->availableSize() - screenReserve;
    resize(sizeHint().boundedTo(room).expandedTo(smallestContent));
}

void DocumentWindow::closeDismissingPanels() {
    for (QDialog* const panel : findChildren<QDialog*>(Qt::FindDirectChildrenOnly))
        if (panel->isVisible()) panel->reject();
    if (isVisible()) close();
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
    QMainWindow::closeEvent(event);
    if (event->isAccepted()) Q_EMIT closed();
}

}  // namespace marlevo
