#pragma once

#include <QMenu>

namespace marlevo {

class MarlevoApp;

/// The menu that minimises its window and lists all document windows. Choosing one activates it.
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
