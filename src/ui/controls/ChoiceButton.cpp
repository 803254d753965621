#include "ui/controls/ChoiceButton.h"

namespace marlevo {

ChoiceButton::ChoiceButton(Look look, const QString& name, QWidget* parent)
    : ToolButton(look, name, parent) {
    setCheckable(true);
    connect(this, &ChoiceButton::clicked, this, &ChoiceButton::chosen);
}

}  // namespace marlevo
