#include "ui/Divider.h"

#include "ui/SemanticColors.h"

#include <QPainter>

namespace marlevo {

Divider::Divider(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

void Divider::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), semanticColor(SemanticColor::separator));
}

}  // namespace marlevo
