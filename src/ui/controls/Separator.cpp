#include "ui/controls/Separator.h"

#include "ui/controls/SemanticColors.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

constexpr int thickness = 1;

}  // namespace

Separator::Separator(int padding, QWidget* parent) : QWidget(parent) {
    setFixedHeight(thickness + 2 * padding);
}

void Separator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // Whole device pixels, so that all separators are equally thick at fractional scales.
    const QTransform toDevice = painter.deviceTransform();
    const double top = std::round(toDevice.map(QPointF(0, (height() - thickness) / 2.0)).y());
    const double pixels = std::max(1.0, std::floor(thickness * devicePixelRatioF()));
    const QRectF line(0, toDevice.inverted().map(QPointF(0, top)).y(), width(),
                      pixels / devicePixelRatioF());
    painter.fillRect(line, semanticColor(SemanticColor::separator));
}

}  // namespace marlevo
