#pragma once

#include "platform/qt/KeyRepeats.h"

#include <QObject>

namespace marlevo {

/// Stops repeats of a held key from triggering shortcuts that do not auto-repeat, including the
/// repeats that Qt does not recognise. Must be installed on the application object.
///
/// The shortcuts do not get such a repeat. The focused widget gets it like any other press, so text
/// fields repeat.
class KeyRepeatFilter final : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    KeyRepeats repeats_;
};

}  // namespace marlevo
