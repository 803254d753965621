#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace marlevo {

bool isProminent(const QStyleOptionButton& button) {
    return button.features.testFlag(QStyleOptionButton::DefaultButton) &&
           ControlState(button).isEnabled;
}

void paintPushButton(QPainter& painter, const QStyleOptionButton& button) {
    const ControlState state(button);
    const QColor ink = semanticColor(SemanticColor::primary);
    const bool isDown = state.isDown || state.isChecked;
    if (isProminent(button)) {
        const QColor blue = semanticColor(SemanticColor::blue);
        paintRoundedRect(painter, button.rect, fieldRadius, isDown ? blue.darker(115) : blue);
        if (state.isHovered && !isDown)
            paintRoundedRect(painter, button.rect, fieldRadius,
                             withOpacity(Qt::black, opacity::defaultButtonHovered));
        return;
    }
    const QColor face = semanticColor(SemanticColor::controlBackground);
    paintRoundedRect(
        painter, button.rect, fieldRadius,
        state.isEnabled ? face : withOpacity(face, opacity::disabledFace),
        {withOpacity(ink, state.isEnabled ? opacity::buttonEdge : opacity::buttonEdgeDisabled), 1});
    if (isDown || state.isHovered)
        paintRoundedRect(
            painter, button.rect, fieldRadius,
            withOpacity(ink, isDown ? opacity::buttonPressed : opacity::buttonHovered));
}

}  // namespace marlevo
