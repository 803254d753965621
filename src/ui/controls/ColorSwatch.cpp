#include "ui/controls/ColorSwatch.h"

#include "ui/controls/Colors.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QPainter>

#include <utility>

namespace marlevo {

namespace {

constexpr int circle = 14;
constexpr int room = 1;  // on each side, for the outline and the focus ring

}  // namespace

ColorSwatch::ColorSwatch(const QString& name, std::function<Color()> color, QWidget* parent)
    : ChoiceButton(Look::custom, name, parent), color_(std::move(color)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::setSelection(Selection selection) {
    selection_ = selection;
    setActive(selection == Selection::active);
    update();
}

QSize ColorSwatch::sizeHint() const {
    const int side = grownWithText(circle) + 2 * room;
    return {side, side};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(opacity::disabled);
    const QRectF disc = QRectF(rect()).adjusted(room, room, -room, -room);
    const QColor outline =
        selection_ == Selection::active
            ? semanticColor(SemanticColor::blue)
            : withOpacity(semanticColor(SemanticColor::gray), opacity::swatchOutline);
    const QColor color = toQColor(color_());
    const double radius = disc.width() / 2;
    paintRoundedRect(painter, disc, radius, color);
    if (selection_ != Selection::active) paintColorEdge(painter, disc, radius, color);
    // Half of the outline is outside the circle, so that the coloured area keeps its size.
    const double width = selection_ == Selection::none ? 1 : 2.5;
    const double outside = std::min(width / 2, double(room));
    paintRoundedRect(painter, disc.adjusted(-outside, -outside, outside, outside), radius + outside,
                     Qt::transparent, {outline, width});
    if (isHovered() && !isDown()) {
        paintRoundedRect(
            painter, disc, radius, Qt::transparent,
            {withOpacity(semanticColor(SemanticColor::gray), opacity::swatchHovered), 1});
    }
    if (hasFocus()) paintFocusRing(painter, rect(), this->width() / 2.0);
}

}  // namespace marlevo
