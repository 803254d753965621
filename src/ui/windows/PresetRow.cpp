#include "ui/windows/PresetRow.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace marlevo {

namespace {

// View points.
constexpr int horizontalPadding = 10;
constexpr int verticalPadding = 8;
constexpr int iconSpacing = 8;
constexpr double cornerRadius = 8;

constexpr double selectedOpacity = 0.1;
constexpr double hoveredOpacity = 0.05;

}  // namespace

PresetRow::PresetRow(const CanvasSize::Preset& preset, QWidget* parent)
    : QRadioButton(QCoreApplication::translate("Presets", preset.name.c_str()), parent),
      preset_(preset) {
    // The sheet decides: choosing another way of giving the size leaves no row chosen.
    setAutoExclusive(false);
    setAttribute(Qt::WA_Hover);
    // A click leaves the keys where they are.
    setFocusPolicy(Qt::TabFocus);
    setTypeStyle(*this, TypeStyle::body);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    new ElidedToolTip(this, [this] { return width() < sizeHint().width() ? text() : QString(); });
}

void PresetRow::showSelected(bool isSelected) {
    const QSignalBlocker quiet(this);
    setChecked(isSelected);
}

QSize PresetRow::sizeHint() const {
    const int icon = iconSide(TypeStyle::title3);
    const int textWidth = fontMetrics().horizontalAdvance(text());
    return {textWidth + iconSpacing + icon + 2 * horizontalPadding,
            std::max(fontMetrics().height(), icon) + 2 * verticalPadding};
}

void PresetRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor blue = semanticColor(SemanticColor::blue);
    if (isChecked())
        paintRoundedRect(painter, rect(), cornerRadius, withOpacity(blue, selectedOpacity));
    else if (underMouse())
        paintRoundedRect(painter, rect(), cornerRadius,
                         withOpacity(semanticColor(SemanticColor::primary), hoveredOpacity));

    const QRect inside =
        rect().adjusted(horizontalPadding, verticalPadding, -horizontalPadding, -verticalPadding);
    painter.setPen(semanticColor(SemanticColor::primary));
    const int side = iconSide(TypeStyle::title3);
    const int room = inside.width() - side - iconSpacing;
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room);
    painter.drawText(inside, int(Qt::AlignLeading | Qt::AlignVCenter), shown);
    if (isChecked()) {
        const QRect mark = QStyle::alignedRect(
            layoutDirection(), Qt::AlignTrailing | Qt::AlignVCenter, QSize(side, side), inside);
        paintIcon(painter, Icon::checkCircle, mark, blue);
    }
    if (hasFocus()) paintFocusRing(painter, rect(), cornerRadius);
}

}  // namespace marlevo
