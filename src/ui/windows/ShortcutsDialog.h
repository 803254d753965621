#pragma once

#include <QDialog>

class QMenu;
class QMenuBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace marlevo {

/// Lists the keys of a window: the shortcuts in its menus and the keys without a menu item.
class ShortcutsDialog final : public QDialog {
    Q_OBJECT

public:
    ShortcutsDialog(const QMenuBar& menus, QWidget* parent);

private:
    QTreeWidgetItem* addSection(const QString& title);
    void addMenu(QTreeWidgetItem& section, const QMenu& menu);
    void addKeysWithoutMenuItem();

    QTreeWidget* list_;
};

}  // namespace marlevo
