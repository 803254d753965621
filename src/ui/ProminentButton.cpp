#include "ui/ProminentButton.h"

#include "ui/ControlPainting.h"
#include "ui/SemanticColors.h"

#include <QPainter>

namespace marlevo {

namespace {

// View points.
constexpr int extraWidth = 16;
constexpr double cornerRadius = 5;
constexpr double focusRadius = 6;

constexpr double disabledFill = 0.12;
constexpr double disabledText = 0.5;
constexpr int hoveredDarkness = 108;
constexpr int pressedDarkness = 115;

}  // namespace

ProminentButton::ProminentButton(const QString& title, QWidget* parent)
    : QPushButton(title, parent) {
    setAttribute(Qt::WA_Hover);
}

QSize ProminentButton::sizeHint() const { return QPushButton::sizeHint() + QSize(extraWidth, 0); }

void ProminentButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = semanticColor(SemanticColor::blue);
    QColor ink = Qt::white;
    if (!isEnabled()) {
        ink = withOpacity(semanticColor(SemanticColor::primary), disabledText);
        fill = withOpacity(semanticColor(SemanticColor::primary), disabledFill);
    } else if (isDown()) {
        fill = fill.darker(pressedDarkness);
    } else if (underMouse()) {
        fill = fill.darker(hoveredDarkness);
    }
    const QRectF face = QRectF(rect()).adjusted(1, 1, -1, -1);
    paintRoundedRect(painter, face, cornerRadius, fill);
    painter.setPen(ink);
    painter.drawText(face, Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (hasFocus()) paintFocusRing(painter, rect(), focusRadius);
}

}  // namespace marlevo
