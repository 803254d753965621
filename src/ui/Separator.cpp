#include "ui/Separator.h"

#include "ui/SemanticColors.h"

#include <QPainter>

namespace marlevo {

namespace {

constexpr int lineHeight = 1;
constexpr int padding = 2;

}  // namespace

Separator::Separator(QWidget* parent) : QWidget(parent) {
    setFixedHeight(lineHeight + 2 * padding);
}

void Separator::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(0, padding, width(), lineHeight,
                            semanticColor(SemanticColor::separator));
}

}  // namespace marlevo
