#include "ui/controls/ColorWell.h"

#include "ui/controls/Colors.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>

namespace marlevo {

namespace {

constexpr int wellHeight = 20;
constexpr double radius = 5;
constexpr double focusRadius = 6;
constexpr double innerRadius = 3;
constexpr double frame = 3;
constexpr int checker = 4;

void paintCheckers(QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, Qt::white);
    for (int row = 0; row * checker < rect.height(); ++row)
        for (int column = row % 2; column * checker < rect.width(); column += 2)
            painter.fillRect(QRectF(rect.left() + column * checker, rect.top() + row * checker,
                                    checker, checker),
                             QColor(0xc8c8cc));
}

}  // namespace

ColorWell::ColorWell(const QString& name, Opacity opacity, int width, QWidget* parent)
    : ToolButton(Look::custom, name, parent), opacity_(opacity), width_(width) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &ColorWell::clicked, this, &ColorWell::openPanel);
}

void ColorWell::showColor(const Color& color) {
    if (color == color_) return;
    color_ = color;
    setAccessibleDescription(
        toQColor(color).name(color.alpha < 1 ? QColor::HexArgb : QColor::HexRgb));
    update();
    if (panel_ && toColor(panel_->currentColor()) != color) {
        const QSignalBlocker quiet(panel_);
        panel_->setCurrentColor(toQColor(color));
    }
}

QSize ColorWell::sizeHint() const { return {width_, wellHeight}; }

void ColorWell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    const QColor gray = semanticColor(SemanticColor::gray);
    const double fill = isDown() ? pressedFill : isHovered() ? hoveredFill : restingFill;
    paintRoundedRect(painter, rect(), radius, withOpacity(gray, fill),
                     {withOpacity(gray, outlineOpacity), 1});

    const QRectF inner = QRectF(rect()).adjusted(frame, frame, -frame, -frame);
    QPainterPath shape;
    shape.addRoundedRect(inner, innerRadius, innerRadius);
    const QColor color = toQColor(color_);
    if (color.alpha() < 255) {
        painter.save();
        painter.setClipPath(shape);
        paintCheckers(painter, inner);
        painter.restore();
    }
    paintRoundedRect(painter, inner, innerRadius, color, {withOpacity(gray, outlineOpacity), 1});
    if (hasFocus()) paintFocusRing(painter, rect(), focusRadius);
}

void ColorWell::changeEvent(QEvent* event) {
    ToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled() && panel_) panel_->close();
}

void ColorWell::openPanel() {
    if (panel_) {
        panel_->raise();
        panel_->activateWindow();
        return;
    }
    panel_ = new QColorDialog(toQColor(color_), window());
    panel_->setAttribute(Qt::WA_DeleteOnClose);
    panel_->setWindowTitle(accessibleName());
    panel_->setOption(QColorDialog::DontUseNativeDialog);
    panel_->setOption(QColorDialog::NoButtons);
    panel_->setOption(QColorDialog::ShowAlphaChannel, opacity_ == Opacity::choosable);
    connect(panel_, &QColorDialog::currentColorChanged, this, &ColorWell::choose);
    panel_->show();
}

void ColorWell::choose(const QColor& color) {
    Color chosen = toColor(color);
    if (opacity_ == Opacity::fixed) chosen.alpha = 1;
    Q_EMIT colorChosen(chosen);
}

}  // namespace marlevo
