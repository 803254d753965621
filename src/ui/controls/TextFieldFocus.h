#pragma once

class QLineEdit;
class QWidget;

namespace marlevo {

/// The field in the window that takes what is typed now; null when there is none or when it can
/// only be read.
QLineEdit* focusedTextField(const QWidget& window);

}  // namespace marlevo
