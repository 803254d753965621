#include "ui/controls/ModeButton.h"

#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/IconEngine.h"
#include "ui/controls/TypeScale.h"

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
    : ChoiceButton(kind == Kind::primary ? Look::primaryTool : Look::secondaryTool, label, parent) {
    setText(label);
    setIcon(makeIcon(icon));
    setTypeStyle(*this, TypeStyle::caption, QFont::Medium);
    new ElidedToolTip(this, [this] { return labelWidth() > roomForLabel() ? text() : QString(); });
}

int ModeButton::labelWidth() const { return fontMetrics().horizontalAdvance(text()) + 1; }

int ModeButton::widthAround(int labelWidth, int padding) const {
    return padding + iconSide(TypeStyle::caption) + iconGap + labelWidth + padding;
}

QSize ModeButton::sizeHint() const {
    const int line = std::max(fontMetrics().height(), iconSide(TypeStyle::caption));
    return {widthAround(labelWidth(), sidePadding), line + 2 * verticalPadding};
}

QSize ModeButton::minimumSizeHint() const {
    const int fewLetters = fontMetrics().horizontalAdvance(QStringLiteral("nn…"));
    return {widthAround(std::min(labelWidth(), fewLetters), leastSidePadding), sizeHint().height()};
}

int ModeButton::tightWidth() const { return widthAround(labelWidth(), leastSidePadding); }

int ModeButton::roomForLabel() const { return width() - widthAround(0, leastSidePadding); }

void ModeButton::initStyleOption(QStyleOptionToolButton* option) const {
    ChoiceButton::initStyleOption(option);
    option->text = fontMetrics().elidedText(text(), Qt::ElideRight, roomForLabel());
}

}  // namespace marlevo
