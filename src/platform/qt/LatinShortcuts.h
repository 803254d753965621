#pragma once

#include <QObject>

class QKeyEvent;
class QWindow;

namespace marlevo {

/// Makes shortcuts work on keyboards whose only layouts have no Latin letters. To be installed on
/// the application, after `KeyRepeatFilter`.
///
/// A key that is pressed with Ctrl and makes a character of another script counts as the letter, or
/// as the comma, "-" or "=", in the same place on a US keyboard. Windows, widgets and the actions
/// of the window get it instead. Qt itself does this for a layout beside a Latin one only.
///
/// Known by the key codes of X11 and Wayland, which are those of the kernel plus 8.
class LatinShortcuts final : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool isClaimed_ = false;  ///< by a widget, before the shortcuts
};

}  // namespace marlevo
