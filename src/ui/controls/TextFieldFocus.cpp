#include "ui/controls/TextFieldFocus.h"

#include <QLineEdit>

namespace marlevo {

QLineEdit* focusedTextField(const QWidget& window) {
    auto* const field = qobject_cast<QLineEdit*>(window.focusWidget());
    return field && field->isEnabled() && !field->isReadOnly() ? field : nullptr;
}

}  // namespace marlevo
