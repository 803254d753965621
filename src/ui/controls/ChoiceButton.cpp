#include "ui/controls/ChoiceButton.h"

namespace marlevo {

ChoiceButton::ChoiceButton(const QString& name, QWidget* parent) : PaintedButton(name, parent) {
    setCheckable(true);
    connect(this, &ChoiceButton::clicked, this, &ChoiceButton::chosen);
}

}  // namespace marlevo
