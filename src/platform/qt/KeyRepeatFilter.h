#pragma once

#include <QObject>

namespace marlevo {

/// Keeps shortcuts from running again and again while their key is held, for commands that do not
/// auto-repeat. To be installed on the application.
///
/// X11 tells a repeat as a release and a press of one time stamp. Qt marks the pair as a repeat
/// only when it has already received both; the pairs that it misses are recognised here. Such a
/// press is withheld from the shortcuts and reaches the focused widget like any other, so text
/// fields repeat.
class KeyRepeatFilter final : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    int releasedKey_ = 0;
    quint64 releaseTime_ = 0;
};

}  // namespace marlevo
