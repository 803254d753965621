#include "ui/ChoiceButton.h"

#include <QScopedValueRollback>

namespace marlevo {

ChoiceButton::ChoiceButton(const QString& name, QWidget* parent) : PaintedButton(name, parent) {
    setCheckable(true);
    connect(this, &ChoiceButton::clicked, this, &ChoiceButton::chosen);
    connect(this, &ChoiceButton::toggled, this, &ChoiceButton::undoToggle);
}

void ChoiceButton::setActive(bool active) {
    const QScopedValueRollback told(isBeingTold_, true);
    setChecked(active);
}

// Assistive technology toggles a checkable button instead of clicking it.
void ChoiceButton::undoToggle(bool checked) {
    if (isBeingTold_) return;
    setActive(!checked);
    Q_EMIT chosen();
}

}  // namespace marlevo
