#include "ui/controls/IconButton.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"

#include <QPainter>

namespace marlevo {

namespace {

constexpr QSize borderlessFrame(28, 26);
constexpr QSize borderedFrame(24, 22);
constexpr int leastMargin = 4;
constexpr double radius = 5;

}  // namespace

IconButton::IconButton(Icon icon, const QString& name, Look look, QWidget* parent)
    : PaintedButton(name, parent), icon_(icon), look_(look) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

TypeStyle IconButton::iconStyle() const {
    return look_ == Look::bordered ? TypeStyle::caption : TypeStyle::body;
}

QSize IconButton::sizeHint() const {
    const QSize frame = look_ == Look::bordered ? borderedFrame : borderlessFrame;
    const int side = iconSide(iconStyle()) + 2 * leastMargin;
    return frame.expandedTo({side, side});
}

void IconButton::paintContents(QPainter& painter) {
    const QColor gray = semanticColor(SemanticColor::gray);
    const double resting = look_ == Look::bordered ? 0.06 : 0;
    const double fill = isDown() ? 0.25 : isInviting() ? 0.12 : resting;
    const Outline outline{withOpacity(gray, 0.35), look_ == Look::bordered ? 1.0 : 0.0};
    paintRoundedRect(painter, rect(), radius, withOpacity(gray, fill), outline);

    const int side = iconSide(iconStyle());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect()).center());
    paintIcon(painter, icon_, square, semanticColor(SemanticColor::primary));
}

}  // namespace marlevo
