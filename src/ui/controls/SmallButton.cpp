#include "ui/controls/SmallButton.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QFontMetrics>
#include <QPainter>

namespace marlevo {

namespace {

// View points.
constexpr int horizontalPadding = 8;
constexpr int verticalPadding = 2;
constexpr double cornerRadius = 5;

constexpr double hoveredOpacity = 0.06;
constexpr double pressedOpacity = 0.14;
constexpr double borderOpacity = 0.22;

}  // namespace

SmallButton::SmallButton(const QString& title, QWidget* parent) : PaintedButton(title, parent) {
    setText(title);
    setTypeStyle(*this, TypeStyle::caption);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SmallButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * horizontalPadding,
            fontMetrics().height() + 2 * verticalPadding};
}

void SmallButton::paintContents(QPainter& painter) {
    const QColor text = semanticColor(SemanticColor::primary);
    paintRoundedRect(painter, rect(), cornerRadius, semanticColor(SemanticColor::controlBackground),
                     {withOpacity(text, borderOpacity), 1});
    if (isDown() || isInviting())
        paintRoundedRect(painter, rect(), cornerRadius,
                         withOpacity(text, isDown() ? pressedOpacity : hoveredOpacity));
    painter.setPen(text);
    painter.drawText(rect(), Qt::AlignCenter, this->text());
}

double SmallButton::focusRadius() const { return cornerRadius; }

}  // namespace marlevo
