#pragma once

#include <QObject>

namespace marlevo {

/// Makes shortcuts work while the layout of the keyboard has no Latin letters. To be installed on
/// the application, after `KeyRepeatFilter`.
///
/// A key that is pressed with Ctrl or Alt is then replaced: by the key of the same code in the
/// keyboard's Latin layout or, without one, on a US keyboard. Windows, widgets, the window's
/// actions and the menus of its bar get the replacement. Qt itself does this only for keys of
/// letters, and only beside a Latin layout.
///
/// Keys have the codes of X11 and Wayland, which are those of the kernel plus 8. On Wayland, where
/// the layout in use is unknown, each key with a letter of another script is replaced.
class LatinShortcuts final : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool isPassingOn_ = false;  ///< true while this object sends an event
    bool isClaimed_ = false;    ///< a widget has accepted the key before the shortcuts
};

}  // namespace marlevo
