#include "ui/DocumentWindow.h"

#include <QScreen>

namespace marlevo {

namespace {

constexpr QSize smallestSize(700, 500);

// What a desktop's panels and the window's own frame take of the screen.
constexpr QSize screenReserve(20, 60);

Services withPanels(Services services, FilePanels& panels) {
    if (services.filePanels == nullptr) services.filePanels = &panels;
    return services;
}

}  // namespace

DocumentWindow::DocumentWindow(const Services& services)
    : filePanels_(*this), document_(withPanels(services, filePanels_)), menus_(document_, this),
      viewTools_(document_, this), sidebar_(document_), canvas_(document_) {
    setWindowTitle(tr("Marlevo"));
    setMenuBar(&menus_);
    addToolBar(&viewTools_);
    columns_.addWidget(&sidebar_);
    columns_.addWidget(&canvas_);
    columns_.setStretchFactor(1, 1);
    columns_.setChildrenCollapsible(false);
    sidebar_.setMaximumWidth(SidebarView::greatestWidth);
    setCentralWidget(&columns_);
    setContextMenuPolicy(Qt::NoContextMenu);

    setMinimumSize(smallestSize);
    const QSize room = screen()->availableSize() - screenReserve;
    resize(sizeHint().boundedTo(room).expandedTo(smallestSize));
}

void DocumentWindow::showEvent(QShowEvent* event) {
    document_.ensureLayers();
    QMainWindow::showEvent(event);
}

}  // namespace marlevo
