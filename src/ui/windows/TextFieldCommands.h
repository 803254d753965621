#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QLineEdit;
class QMenu;
class QWidget;

namespace marlevo {

/// Cut, Copy, Paste and Select All for the focused text field of a window; disabled without one. A
/// field handles the keys of these commands itself.
class TextFieldCommands final : public QObject {
    Q_OBJECT

public:
    /// Adds the commands to the menu. Owned by the menu.
    TextFieldCommands(QMenu& menu, QWidget& window);

private:
    void add(QMenu& menu, const QString& title, const QKeySequence& shortcut,
             std::function<void(QLineEdit&)> run);
    void followFocus();

    QWidget& window_;
    std::vector<QAction*> actions_;
};

}  // namespace marlevo
