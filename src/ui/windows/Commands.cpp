#include "ui/windows/Commands.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace marlevo {

void setCommandShortcut(QAction& action, const QKeySequence& shortcut) {
    action.setShortcut(shortcut);
    action.setAutoRepeat(false);
}

QAction& addCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                    std::function<void()> run) {
    QAction& action = *menu.addAction(title);
    setCommandShortcut(action, shortcut);
    QObject::connect(&action, &QAction::triggered, &menu, [run = std::move(run)] { run(); });
    return action;
}

}  // namespace marlevo
