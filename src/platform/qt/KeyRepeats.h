#pragma once

#include <QObject>

class QKeyEvent;

namespace marlevo {

/// Distinguishes repeats of a held key from new presses. Needs all keyboard events in their order.
///
/// X11 sends a repeat as a release and a press with the same time stamp. Qt marks such a pair as a
/// repeat only if both have arrived when it reads the first. This class recognises the other pairs.
class KeyRepeats {
public:
    void release(const QKeyEvent& event);

    bool isRepeat(const QKeyEvent& press) const;

private:
    int releasedKey_ = 0;
    quint64 releaseTime_ = 0;
};

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
