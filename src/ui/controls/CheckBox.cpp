#include "ui/controls/CheckBox.h"

#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/IconEngine.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/TypeScale.h"

#include <QSignalBlocker>
#include <QStyleOptionButton>

namespace marlevo {

CheckBox::CheckBox(const QString& label, std::optional<Icon> icon, QWidget* parent)
    : QCheckBox(label, parent) {
    if (icon) setIcon(makeIcon(*icon));
    setAccessibleName(label);
    setFocusPolicy(Qt::TabFocus);
    setTypeStyle(*this, TypeStyle::callout);
    new ElidedToolTip(this, [this] { return width() < sizeHint().width() ? text() : QString(); });
}

void CheckBox::showChecked(bool checked) {
    const QSignalBlocker quiet(this);
    setChecked(checked);
}

QSize CheckBox::minimumSizeHint() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    return leastCheckBoxSize(option);
}

}  // namespace marlevo
