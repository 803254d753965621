#pragma once

#include "ui/controls/ToolButton.h"

namespace marlevo {

/// A button for one of several choices. A press emits chosen() and changes nothing else; the owner
/// sets the state with setActive(). Several buttons may be active at once, or none.
class ChoiceButton : public ToolButton {
    Q_OBJECT

public:
    ChoiceButton(Look look, const QString& name, QWidget* parent = nullptr);

    bool isActive() const { return isChecked(); }
    void setActive(bool active) { setChecked(active); }

Q_SIGNALS:
    /// Pressed by pointer, keyboard or assistive technology, also while active.
    void chosen();

protected:
    void nextCheckState() override {}
};

}  // namespace marlevo
