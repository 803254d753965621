#include "ui/windows/WindowMenu.h"

#include "ui/windows/Commands.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/MarlevoApp.h"

namespace marlevo {

WindowMenu::WindowMenu(MarlevoApp& app, QWidget& window)
    : QMenu(tr("&Window"), &window), app_(app), window_(window) {
    addCommand(*this, tr("Minimize"), Qt::CTRL | Qt::Key_M, [&window] { window.showMinimized(); });
    addSeparator();
    connect(this, &QMenu::aboutToShow, this, &WindowMenu::listWindows);
}

void WindowMenu::listWindows() {
    qDeleteAll(listed_);
    listed_.clear();
    for (DocumentWindow* const window : app_.documentWindows()) {
        QString title = window->content().windowTitle().replace('&', QLatin1String("&&"));
        QAction* const action = addAction(title, window, [window] {
            window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
            window->raise();
            window->activateWindow();
        });
        action->setCheckable(true);
        action->setChecked(window == &window_);
        listed_.push_back(action);
    }
}

}  // namespace marlevo
