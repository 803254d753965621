#pragma once

#include "platform/qt/KeyRepeats.h"

#include <QObject>

namespace marlevo {

/// Keeps shortcuts from running again and again while their key is held, for commands that do not
/// auto-repeat, also where Qt misses the repeat. To be installed on the application.
///
/// A repeat is withheld from the shortcuts and reaches the focused widget like any other press, so
/// text fields repeat.
class KeyRepeatFilter final : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    KeyRepeats repeats_;
};

}  // namespace marlevo
