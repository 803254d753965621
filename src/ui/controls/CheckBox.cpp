#include "ui/controls/CheckBox.h"

#include "ui/controls/IconEngine.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/TypeScale.h"
#include "ui/controls/WrapText.h"

#include <QSignalBlocker>
#include <QStyleOptionButton>

namespace marlevo {

CheckBox::CheckBox(const QString& label, std::optional<Icon> icon, QWidget* parent)
    : QCheckBox(label, parent) {
    if (icon) setIcon(makeIcon(*icon));
    setAccessibleName(withoutSoftHyphens(label));
    setFocusPolicy(Qt::TabFocus);
    setTypeStyle(*this, TypeStyle::callout);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CheckBox::showChecked(bool checked) {
    const QSignalBlocker quiet(this);
    setChecked(checked);
}

QStyleOptionButton CheckBox::optionWithoutBreaks() const {
    QStyleOptionButton option;
    QCheckBox::initStyleOption(&option);
    option.text = withoutSoftHyphens(text());
    return option;
}

QSize CheckBox::sizeHint() const { return checkBoxSize(optionWithoutBreaks()); }

QSize CheckBox::minimumSizeHint() const { return leastCheckBoxSize(optionWithoutBreaks()); }

int CheckBox::heightForWidth(int width) const {
    QStyleOptionButton option = optionWithoutBreaks();
    option.text = wrapText(text(), font(), checkBoxLabelRoom(option, width));
    return checkBoxSize(option).height();
}

void CheckBox::initStyleOption(QStyleOptionButton* option) const {
    QCheckBox::initStyleOption(option);
    option->text = wrapText(text(), font(), checkBoxLabelRoom(*option, width()));
}

}  // namespace marlevo
