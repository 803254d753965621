#include "ui/windows/SettingsWindow.h"

#include "ui/windows/MarlevoApp.h"

#include <QAction>
#include <QVBoxLayout>

namespace marlevo {

SettingsWindow::SettingsWindow(MarlevoApp& app) : preferences_(*app.services().preferences) {
    setWindowTitle(tr("Settings"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // As large as its content and no larger.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(&preferences_);

    const auto addKey = [this](const QKeySequence& key, auto run) {
        auto* action = new QAction(this);
        action->setShortcut(key);
        action->setAutoRepeat(false);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    addKey(Qt::CTRL | Qt::Key_W, [this] { close(); });
    addKey(Qt::CTRL | Qt::Key_Q, [&app] { app.quit(); });
}

}  // namespace marlevo
