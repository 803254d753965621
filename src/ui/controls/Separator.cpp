#include "ui/controls/Separator.h"

#include "ui/controls/SemanticColors.h"

#include <QPainter>

namespace marlevo {

namespace {

constexpr int thickness = 1;

}  // namespace

Separator::Separator(int padding, QWidget* parent) : QWidget(parent) {
    setFixedHeight(thickness + 2 * padding);
}

void Separator::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(0, (height() - thickness) / 2, width(), thickness,
                            semanticColor(SemanticColor::separator));
}

}  // namespace marlevo
