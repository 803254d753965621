#include "ui/sidebar/ColorCircle.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QPainter>

namespace marlevo {

namespace {

constexpr int diameter = 18;  // view points, beside a usual font

}  // namespace

ColorCircle::ColorCircle(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorCircle::showColor(const QColor& color) {
    color_ = color;
    update();
}

QSize ColorCircle::sizeHint() const {
    const int side = grownWithText(diameter);
    return {side, side};
}

void ColorCircle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    constexpr double outline = 1;
    paintRoundedRect(painter, rect(), width() / 2.0, color_,
                     {semanticColor(SemanticColor::separator), outline});
    paintColorEdge(painter, QRectF(rect()).adjusted(outline, outline, -outline, -outline),
                   width() / 2.0 - outline, color_);
}

}  // namespace marlevo
