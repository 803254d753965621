#include "ui/ColorButton.h"

#include "ui/Colors.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

namespace marlevo {

namespace {

constexpr int swatchSize = 16;

QIcon swatch(const QColor& color, const QColor& outline, double ratio) {
    QPixmap pixmap(QSize(swatchSize, swatchSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(outline);
    painter.setBrush(color);
    painter.drawRect(QRectF(0.5, 0.5, swatchSize - 1, swatchSize - 1));
    return pixmap;
}

}  // namespace

ColorButton::ColorButton(const QString& name, Opacity opacity, QWidget* parent)
    : QToolButton(parent), opacity_(opacity) {
    setText(name);
    setAccessibleName(name);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({swatchSize, swatchSize});
    connect(this, &ColorButton::clicked, this, &ColorButton::openPanel);
}

void ColorButton::setColor(const Color& color) {
    color_ = color;
    setIcon(swatch(toQColor(color), palette().color(QPalette::Text), devicePixelRatioF()));
}

void ColorButton::openPanel() {
    auto* panel = new QColorDialog(toQColor(color_), window());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(accessibleName());
    panel->setOption(QColorDialog::DontUseNativeDialog);
    panel->setOption(QColorDialog::ShowAlphaChannel, opacity_ == Opacity::choosable);
    connect(panel, &QColorDialog::colorSelected, this,
            [this](const QColor& chosen) { Q_EMIT colorChosen(toColor(chosen)); });
    panel->open();
}

}  // namespace marlevo
