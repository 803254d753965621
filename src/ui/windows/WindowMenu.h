#pragma once

#include <QMenu>

namespace marlevo {

class MarlevoApp;

/// The menu of a window about windows: minimises this one, and lists all to go to.
class WindowMenu final : public QMenu {
    Q_OBJECT

public:
    WindowMenu(MarlevoApp& app, QWidget& window);

private:
    void listWindows();

    MarlevoApp& app_;
    QWidget& window_;
    QList<QAction*> listed_;
};

}  // namespace marlevo
