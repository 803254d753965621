#pragma once

#include "ui/controls/PaintedButton.h"

namespace marlevo {

/// A button for one of several choices that somebody else keeps: being pressed, it only says so,
/// and it is down when it is told that it is the one.
class ChoiceButton : public PaintedButton {
    Q_OBJECT

public:
    explicit ChoiceButton(const QString& name, QWidget* parent = nullptr);

    bool isActive() const { return isChecked(); }
    void setActive(bool active) { setChecked(active); }

Q_SIGNALS:
    /// Pressed by pointer, keyboard or assistive technology, also while active.
    void chosen();

protected:
    /// A press does not change what is shown.
    void nextCheckState() override {}
};

}  // namespace marlevo
