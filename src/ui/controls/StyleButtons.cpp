#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace marlevo {

namespace {

constexpr double radius = 5;  // view points

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

}  // namespace

bool isProminent(const QStyleOptionButton& button) {
    return button.features.testFlag(QStyleOptionButton::DefaultButton) &&
           has(button, QStyle::State_Enabled);
}

void paintPushButton(QPainter& painter, const QStyleOptionButton& button) {
    const QColor ink = semanticColor(SemanticColor::primary);
    const bool isDown = has(button, QStyle::State_Sunken) || has(button, QStyle::State_On);
    const bool isHovered =
        has(button, QStyle::State_MouseOver) && has(button, QStyle::State_Enabled);
    if (isProminent(button)) {
        const QColor blue = semanticColor(SemanticColor::blue);
        paintRoundedRect(painter, button.rect, radius, isDown ? blue.darker(115) : blue);
        if (isHovered && !isDown)
            paintRoundedRect(painter, button.rect, radius, withOpacity(Qt::black, 0.07));
        return;
    }
    QColor face = semanticColor(SemanticColor::controlBackground);
    double border = 0.22;
    if (!has(button, QStyle::State_Enabled)) {
        face = withOpacity(face, 0.5);
        border = 0.12;
    }
    paintRoundedRect(painter, button.rect, radius, face, {withOpacity(ink, border), 1});
    if (isDown || isHovered)
        paintRoundedRect(painter, button.rect, radius, withOpacity(ink, isDown ? 0.14 : 0.06));
}

void paintPushButtonFocus(QPainter& painter, const QRect& rect) {
    paintFocusRing(painter, rect, radius);
}

}  // namespace marlevo
