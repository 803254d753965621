#pragma once

#include <QMenu>

class QMenuBar;

namespace marlevo {

/// The list of shortcuts, and what the program is.
class HelpMenu final : public QMenu {
    Q_OBJECT

public:
    /// The shortcuts listed are those of `menus`, which the menu belongs to, and those that the
    /// window has besides.
    explicit HelpMenu(QMenuBar& menus);

private:
    void showShortcuts(const QMenuBar& menus);
    void showAbout();
};

}  // namespace marlevo
