#pragma once

#include <QObject>

namespace marlevo {

/// Makes shortcuts work while the layout of the keyboard has no Latin letters. To be installed on
/// the application, after `KeyRepeatFilter`.
///
/// A key that is pressed with Ctrl then counts as what it makes in the keyboard's Latin layout,
/// else on a US keyboard. Windows, widgets and the actions of the window get that key instead. Qt
/// itself does so only for a key that makes a letter, and only beside a Latin layout.
///
/// Keys have the codes of X11 and Wayland, which are those of the kernel plus 8. On Wayland, where
/// the layout in use is not known, each key that makes a letter of another script counts.
class LatinShortcuts final : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool isPassingOn_ = false;  ///< an event of this object's own is on its way
    bool isClaimed_ = false;    ///< by a widget, before the shortcuts
};

}  // namespace marlevo
