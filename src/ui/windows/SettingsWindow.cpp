#include "ui/windows/SettingsWindow.h"

#include "ui/windows/Commands.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/PreferencesView.h"

#include <QAction>
#include <QVBoxLayout>

namespace marlevo {

SettingsWindow::SettingsWindow(MarlevoApp& app) {
    setWindowTitle(tr("Settings"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // The window always has the size of its content.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(new PreferencesView(*app.services().preferences));

    const auto addKey = [this](const QKeySequence& key, auto run) {
        auto* action = new QAction(this);
        setCommandShortcut(*action, key);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    addKey(Qt::CTRL | Qt::Key_W, [this] { close(); });
    addKey(Qt::CTRL | Qt::Key_Q, [&app] { app.quit(); });
}

}  // namespace marlevo
