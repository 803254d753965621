#include "ui/controls/ToolButton.h"

#include "ui/controls/ControlAccessibility.h"

#include <QStyleOptionToolButton>

namespace marlevo {

ToolButton::ToolButton(Look look, const QString& name, QWidget* parent)
    : QToolButton(parent), look_(look) {
    installControlAccessibility();
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize ToolButton::sizeHint() const {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ToolButton, &option, {}, this);
}

}  // namespace marlevo
