#include "ui/controls/ModeButton.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int iconGap = 5;
constexpr int sidePadding = 10;
constexpr int leastSidePadding = 4;
constexpr int verticalPadding = 7;
constexpr double radius = 6;

}  // namespace

ModeButton::ModeButton(Kind kind, Icon icon, const QString& label, QWidget* parent)
    : ChoiceButton(label, parent), kind_(kind), icon_(icon) {
    setText(label);
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

int ModeButton::roomForLabel() const { return width() - widthAround(0, leastSidePadding); }

void ModeButton::changeEvent(QEvent* event) {
    ChoiceButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) updateGeometry();
}

void ModeButton::paintBackground(QPainter& painter) {
    const QColor blue = semanticColor(SemanticColor::blue);
    const QColor gray = semanticColor(SemanticColor::gray);
    if (isActive() && kind_ == Kind::primary)
        paintRoundedRect(painter, rect(), radius, blue);
    else if (isActive())
        paintRoundedRect(painter, rect(), radius, withOpacity(blue, 0.15), {blue, 1.5});
    else
        paintRoundedRect(painter, rect(), radius, withOpacity(gray, 0.06),
                         {withOpacity(gray, 0.35), 1});
    if (isDown() || isInviting())
        paintRoundedRect(painter, rect(), radius, withOpacity(gray, isDown() ? 0.25 : 0.12));
}

void ModeButton::paintContents(QPainter& painter) {
    paintBackground(painter);

    const QString label = fontMetrics().elidedText(text(), Qt::ElideRight, roomForLabel());
    const int side = iconSide(TypeStyle::caption);
    const int labelWidth = fontMetrics().horizontalAdvance(label) + 1;
    QRect content(0, 0, side + iconGap + labelWidth, height());
    content.moveCenter(rect().center());
    const QRect iconRect(content.left(), (height() - side) / 2, side, side);
    const QRect labelRect(content.right() + 1 - labelWidth, 0, labelWidth, height());
    const auto mirrored = [&](const QRect& r) {
        return QStyle::visualRect(layoutDirection(), content, r);
    };

    const bool onBlue = isActive() && kind_ == Kind::primary;
    const QColor color = onBlue ? QColor(Qt::white) : semanticColor(SemanticColor::primary);
    paintIcon(painter, icon_, mirrored(iconRect), color);
    painter.setPen(color);
    painter.drawText(mirrored(labelRect), Qt::AlignCenter | Qt::TextSingleLine, label);
}

}  // namespace marlevo
