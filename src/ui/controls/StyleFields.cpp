#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QStyleOptionFrame>

namespace marlevo {

namespace {

constexpr double radius = 5;  // view points

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

}  // namespace

void paintField(QPainter& painter, const QStyleOptionFrame& field) {
    const bool isEnabled = has(field, QStyle::State_Enabled);
    const bool isFocused = has(field, QStyle::State_HasFocus) && isEnabled;
    const QColor ink = semanticColor(SemanticColor::primary);
    const QColor face = semanticColor(SemanticColor::controlBackground);
    const Outline outline = isFocused ? Outline{semanticColor(SemanticColor::blue), 2}
                                      : Outline{withOpacity(ink, isEnabled ? 0.3 : 0.15), 1};
    paintRoundedRect(painter, field.rect, radius, isEnabled ? face : withOpacity(face, 0.5),
                     outline);
}

}  // namespace marlevo
