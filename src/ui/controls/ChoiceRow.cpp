#include "ui/controls/ChoiceRow.h"

#include "ui/controls/ControlAccessibility.h"
#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/TypeScale.h"

#include <QSignalBlocker>

namespace marlevo {

ChoiceRow::ChoiceRow(const QString& text, QWidget* parent) : QRadioButton(text, parent) {
    installControlAccessibility();
    // The owner may show that no row is chosen, which an exclusive group cannot.
    setAutoExclusive(false);
    // A click leaves the keys where they are.
    setFocusPolicy(Qt::TabFocus);
    setTypeStyle(*this, TypeStyle::body);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    new ElidedToolTip(this,
                      [this] { return width() < sizeHint().width() ? this->text() : QString(); });
}

void ChoiceRow::showChosen(bool isChosen) {
    const QSignalBlocker quiet(this);
    setChecked(isChosen);
}

}  // namespace marlevo
