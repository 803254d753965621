#include "ui/controls/IconLabel.h"

#include <QPainter>

namespace marlevo {

IconLabel::IconLabel(Icon icon, TypeStyle style, SemanticColor color, QWidget* parent)
    : QWidget(parent), icon_(icon), style_(style), color_(color) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize IconLabel::sizeHint() const {
    const int side = iconSide(style_);
    return {side, side};
}

void IconLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintIcon(painter, icon_, rect(), semanticColor(color_));
}

}  // namespace marlevo
