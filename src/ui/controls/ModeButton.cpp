#include "ui/controls/ModeButton.h"

#include "ui/controls/IconEngine.h"
#include "ui/controls/TypeScale.h"
#include "ui/controls/WrapText.h"

#include <QStyleOptionToolButton>

#include <algorithm>

namespace marlevo {

namespace {

// View points.
constexpr int sidePadding = 10;
constexpr int leastSidePadding = 4;
constexpr int verticalPadding = 7;

}  // namespace

ModeButton::ModeButton(Kind kind, Icon icon, const QString& label, QWidget* parent)
    : ChoiceButton(kind == Kind::primary ? Look::primaryTool : Look::secondaryTool,
                   withoutSoftHyphens(label), parent) {
    setText(label);
    setIcon(makeIcon(icon));
    setTypeStyle(*this, TypeStyle::caption, QFont::Medium);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

/// In lines for a button of this width.
QString ModeButton::labelFor(int width) const {
    return wrapText(text(), font(), width - sizeAround({}, leastSidePadding).width());
}

QSize ModeButton::sizeAround(const QString& label, int padding) const {
    const int icon = iconSide(TypeStyle::caption);
    const QSize text = fontMetrics().size(0, label);
    return {padding + icon + iconGap + text.width() + 1 + padding,
            std::max(text.height(), icon) + 2 * verticalPadding};
}

QSize ModeButton::sizeHint() const { return sizeAround(withoutSoftHyphens(text()), sidePadding); }

QSize ModeButton::minimumSizeHint() const {
    return sizeAround(withoutSoftHyphens(text()), leastSidePadding);
}

int ModeButton::heightForWidth(int width) const {
    return sizeAround(labelFor(width), leastSidePadding).height();
}

void ModeButton::initStyleOption(QStyleOptionToolButton* option) const {
    ChoiceButton::initStyleOption(option);
    option->text = labelFor(width());
}

}  // namespace marlevo
