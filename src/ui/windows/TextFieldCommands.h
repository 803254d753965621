#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QLineEdit;
class QMenu;
class QWidget;

namespace marlevo {

/// Cut, Copy, Paste and Select All for the text field of a window that has the keyboard; disabled
/// while none has. A field takes the keys of these commands itself.
class TextFieldCommands final : public QObject {
    Q_OBJECT

public:
    /// Adds the commands to the menu and goes with it.
    TextFieldCommands(QMenu& menu, QWidget& window);

private:
    void add(QMenu& menu, const QString& title, const QKeySequence& shortcut,
             std::function<void(QLineEdit&)> run);
    void followFocus();

    QWidget& window_;
    std::vector<QAction*> actions_;
};

}  // namespace marlevo
