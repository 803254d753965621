#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QStyleOptionFrame>

namespace marlevo {

void paintField(QPainter& painter, const QStyleOptionFrame& field) {
    const ControlState state(field);
    const QColor ink = semanticColor(SemanticColor::primary);
    const QColor face = semanticColor(SemanticColor::controlBackground);
    const double edge = state.isEnabled ? opacity::fieldEdge : opacity::fieldEdgeDisabled;
    paintRoundedRect(painter, field.rect, fieldRadius,
                     state.isEnabled ? face : withOpacity(face, opacity::disabledFace),
                     state.isEnabled && state.hasFocus
                         ? Outline{semanticColor(SemanticColor::blue), 2}
                         : Outline{withOpacity(ink, edge), 1});
}

}  // namespace marlevo
