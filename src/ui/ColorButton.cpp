#include "ui/ColorButton.h"

#include "ui/Colors.h"

#include <QColorDialog>
#include <QPainter>

namespace marlevo {

namespace {

constexpr int barHeight = 5;
constexpr int barMargin = 4;

}  // namespace

ColorButton::ColorButton(const QString& name, Opacity opacity, QWidget* parent)
    : QToolButton(parent), opacity_(opacity) {
    setText(name);
    setAccessibleName(name);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(this, &ColorButton::clicked, this, &ColorButton::openPanel);
}

void ColorButton::setColor(const Color& color) {
    color_ = color;
    update();
}

QSize ColorButton::sizeHint() const { return QToolButton::sizeHint() + QSize(0, 2 * barHeight); }

void ColorButton::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(toQColor(color_));
    painter.drawRect(barMargin, height() - barHeight - 2, width() - 2 * barMargin - 1, barHeight);
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
