#pragma once

#include <QKeySequence>

#include <functional>

class QAction;
class QMenu;

namespace marlevo {

/// Sets the shortcut of a command. A held key runs the command once.
void setCommandShortcut(QAction& action, const QKeySequence& shortcut);

/// Adds a command with such a shortcut to a menu, which owns it.
QAction& addCommand(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                    std::function<void()> run);

}  // namespace marlevo
