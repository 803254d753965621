#pragma once

#include <QMenu>

class QMenuBar;

namespace marlevo {

/// The list of shortcuts and the program's name and version.
class HelpMenu final : public QMenu {
    Q_OBJECT

public:
    /// The list has the shortcuts of `menus`, the menu's parent, and the other keys of the window.
    explicit HelpMenu(QMenuBar& menus);

private:
    void showShortcuts(const QMenuBar& menus);
    void showAbout();
};

}  // namespace marlevo
