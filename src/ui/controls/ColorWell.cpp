#include "ui/controls/ColorWell.h"

#include "ui/controls/Colors.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

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
    describeColor();
}

void ColorWell::describeColor() {
    const auto format = color_.alpha < 1 ? QColor::HexArgb : QColor::HexRgb;
    setAccessibleDescription(toQColor(color_).name(format));
}

void ColorWell::showColor(const Color& color) {
    if (color == color_) return;
    color_ = color;
    describeColor();
    update();
    if (panel_ && toColor(panel_->currentColor()) != color) {
        const QSignalBlocker quiet(panel_);
        panel_->setCurrentColor(toQColor(color));
    }
}

QSize ColorWell::sizeHint() const { return {grownWithText(width_), grownWithText(wellHeight)}; }

void ColorWell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(opacity::disabled);
    const QColor gray = semanticColor(SemanticColor::gray);
    const double fill = isDown()      ? opacity::pressed
                        : isHovered() ? opacity::hovered
                                      : opacity::resting;
    paintRoundedRect(painter, rect(), radius, withOpacity(gray, fill),
                     {withOpacity(gray, opacity::outline), 1});

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
    paintRoundedRect(painter, inner, innerRadius, color, {withOpacity(gray, opacity::outline), 1});
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
    // The panel's field of hues is a private class of the toolkit. Its signal identifies it.
    constexpr const char* hueChosen = "newCol(int,int)";
    for (const QWidget* const part : panel_->findChildren<QWidget*>())
        if (part->metaObject()->indexOfSignal(hueChosen) >= 0)
            connect(part, SIGNAL(newCol(int, int)), this, SLOT(takeHue(int, int)));
    panel_->show();
}

/// In the panel every hue of the value 0 is black: the first hue chosen from there is taken at full
/// value.
void ColorWell::takeHue(int hue, int saturation) {
    const QColor shown = panel_->currentColor();
    if (shown.value() == 0)
        panel_->setCurrentColor(QColor::fromHsv(hue, saturation, 255, shown.alpha()));
}

void ColorWell::choose(const QColor& color) {
    Color chosen = toColor(color);
    if (opacity_ == Opacity::fixed) chosen.alpha = 1;
    Q_EMIT colorChosen(chosen);
}

}  // namespace marlevo
