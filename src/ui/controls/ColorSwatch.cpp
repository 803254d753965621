#include "ui/controls/ColorSwatch.h"

#include "ui/controls/Colors.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"

#include <QPainter>

#include <utility>

namespace marlevo {

namespace {

constexpr int circle = 14;
constexpr int room = 1;  // on each side, for the eye to see the focus

}  // namespace

ColorSwatch::ColorSwatch(const QString& name, std::function<Color()> color, QWidget* parent)
    : ChoiceButton(name, parent), color_(std::move(color)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::showStanding(Standing standing) {
    standing_ = standing;
    setActive(standing == Standing::inUse);
    update();
}

QSize ColorSwatch::sizeHint() const { return {circle + 2 * room, circle + 2 * room}; }

void ColorSwatch::paintContents(QPainter& painter) {
    const QRectF disc = QRectF(rect()).adjusted(room, room, -room, -room);
    const QColor outline = standing_ == Standing::inUse
                               ? semanticColor(SemanticColor::blue)
                               : withOpacity(semanticColor(SemanticColor::gray), 0.3);
    paintRoundedRect(painter, disc, circle / 2.0, toQColor(color_()));
    // Half of the line lies outside the circle, so that the colour keeps its place.
    const double width = standing_ == Standing::other ? 1 : 2.5;
    const double outside = std::min(width / 2, double(room));
    paintRoundedRect(painter, disc.adjusted(-outside, -outside, outside, outside),
                     circle / 2.0 + outside, Qt::transparent, {outline, width});
    if (isInviting() && !isDown()) {
        paintRoundedRect(painter, disc, circle / 2.0, Qt::transparent,
                         {withOpacity(semanticColor(SemanticColor::gray), 0.6), 1});
    }
}

}  // namespace marlevo
