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
      drawingTools_(document_, this), viewTools_(document_, this), canvas_(document_, this) {
    setWindowTitle(tr("Marlevo"));
    setMenuBar(&menus_);
    addToolBar(&drawingTools_);
    addToolBarBreak();
    addToolBar(&viewTools_);
    setCentralWidget(&canvas_);
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
