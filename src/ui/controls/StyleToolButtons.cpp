#include "ui/controls/ControlPainting.h"
#include "ui/controls/ModeButton.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/TypeScale.h"

#include <QPainter>
#include <QStyleOptionToolButton>

#include <algorithm>

namespace marlevo {

namespace {

using Look = ToolButton::Look;

// View points.
constexpr QSize borderlessFrame(28, 26);
constexpr QSize borderedFrame(24, 22);
constexpr int leastIconMargin = 4;
constexpr int leastCompactWidth = 16;
constexpr int rowSidePadding = 12;
constexpr int rowPadding = 6;
constexpr int rowHighlightMargin = 4;
constexpr double iconRadius = 5;
constexpr double compactRadius = 4;
constexpr double rowHighlightRadius = 5;
constexpr double radius = 6;

int iconSideOf(Look look) {
    return iconSide(look == Look::borderless ? TypeStyle::body : TypeStyle::caption);
}

void paintIconAt(QPainter& painter, const QIcon& icon, const QPointF& corner, int side,
                 const QColor& color) {
    painter.save();
    painter.setPen(color);
    painter.translate(corner);
    icon.paint(&painter, QRect(0, 0, side, side));
    painter.restore();
}

void paintCentredIcon(QPainter& painter, const QStyleOptionToolButton& button, int side) {
    const QPointF corner = QRectF(button.rect).center() - QPointF(side, side) / 2;
    paintIconAt(painter, button.icon, corner, side, semanticColor(SemanticColor::primary));
}

void paintIconButton(QPainter& painter, const QStyleOptionToolButton& button, Look look) {
    const ControlState state(button);
    const QColor gray = semanticColor(SemanticColor::gray);
    if (look == Look::compact) {
        if (state.isDown || state.isHovered)
            paintRoundedRect(painter, button.rect, compactRadius,
                             withOpacity(gray, state.isDown ? opacity::compactPressed
                                                            : opacity::compactHovered));
        return;
    }
    const bool isBordered = look == Look::bordered;
    const bool hasFill = isBordered || state.isDown || state.isHovered;
    paintRoundedRect(painter, button.rect, iconRadius,
                     withOpacity(gray, hasFill ? state.fill() : 0),
                     {withOpacity(gray, opacity::outline), isBordered ? 1.0 : 0.0});
}

void paintTool(QPainter& painter, const QStyleOptionToolButton& button, Look look) {
    const ControlState state(button);
    const QColor blue = semanticColor(SemanticColor::blue);
    const QColor gray = semanticColor(SemanticColor::gray);
    const bool isOnBlue = state.isChecked && look == Look::primaryTool;
    if (isOnBlue)
        paintRoundedRect(painter, button.rect, radius, blue);
    else if (state.isChecked)
        paintRoundedRect(painter, button.rect, radius, withOpacity(blue, opacity::chosenTool),
                         {blue, 1.5});
    else
        paintRoundedRect(painter, button.rect, radius, withOpacity(gray, opacity::resting),
                         {withOpacity(gray, opacity::outline), 1});
    if (state.isDown || state.isHovered)
        paintRoundedRect(painter, button.rect, radius, withOpacity(gray, state.fill()));

    const int side = iconSideOf(look);
    const int labelWidth = button.fontMetrics.size(0, button.text).width() + 1;
    const int height = button.rect.height();
    QRect content(0, 0, side + ModeButton::iconGap + labelWidth, height);
    content.moveCenter(button.rect.center());
    const QRect icon(content.left(), (height - side) / 2, side, side);
    const QRect label(content.right() + 1 - labelWidth, 0, labelWidth, height);
    const auto mirrored = [&](const QRect& r) {
        return QStyle::visualRect(button.direction, content, r);
    };
    const QColor color = isOnBlue ? QColor(Qt::white) : semanticColor(SemanticColor::primary);
    paintIconAt(painter, button.icon, mirrored(icon).topLeft(), side, color);
    painter.setPen(color);
    painter.drawText(mirrored(label), Qt::AlignCenter, button.text);
}

void paintMenuRow(QPainter& painter, const QStyleOptionToolButton& button) {
    const ControlState state(button);
    if (state.isDown || state.isHovered || state.hasFocus) {
        const QRectF inside =
            QRectF(button.rect).adjusted(rowHighlightMargin, 0, -rowHighlightMargin, 0);
        paintRoundedRect(painter, inside, rowHighlightRadius,
                         withOpacity(semanticColor(SemanticColor::blue),
                                     state.isDown ? opacity::menuRowPressed : opacity::menuRow));
    }
    const QRect content = button.rect.adjusted(rowSidePadding, 0, -rowSidePadding, 0);
    const QColor text = semanticColor(SemanticColor::primary);
    painter.setPen(text);
    painter.drawText(
        content, int(QStyle::visualAlignment(button.direction, Qt::AlignLeft) | Qt::AlignVCenter),
        button.text);
    const int side = iconSideOf(Look::menuRow);
    const QRect icon(content.right() + 1 - side, (button.rect.height() - side) / 2, side, side);
    paintIconAt(painter, button.icon, QStyle::visualRect(button.direction, content, icon).topLeft(),
                side, text);
}

void paintListRow(QPainter& painter, const QStyleOptionToolButton& button) {
    const ControlState state(button);
    if (!state.isChecked && !state.isHovered) return;
    const SemanticColor color = state.isChecked ? SemanticColor::blue : SemanticColor::gray;
    paintRoundedRect(painter, button.rect, radius,
                     withOpacity(semanticColor(color), opacity::listRow));
}

}  // namespace

void paintToolButton(QPainter& painter, const QStyleOptionToolButton& button, Look look) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!button.state.testFlag(QStyle::State_Enabled)) painter.setOpacity(opacity::disabled);
    switch (look) {
    case Look::borderless:
    case Look::bordered:
    case Look::compact:
        paintIconButton(painter, button, look);
        paintCentredIcon(painter, button, iconSideOf(look));
        break;
    case Look::primaryTool:
    case Look::secondaryTool:
        paintTool(painter, button, look);
        break;
    case Look::menuRow:
        paintMenuRow(painter, button);
        break;
    case Look::listRow:
        paintListRow(painter, button);
        break;
    case Look::custom:
        break;
    }
    if (button.state.testFlag(QStyle::State_HasFocus)) paintFocusRing(painter, button.rect, radius);
    painter.restore();
}

QSize toolButtonSize(const QStyleOptionToolButton& button, Look look) {
    const int side = iconSideOf(look);
    const int least = side + 2 * leastIconMargin;
    switch (look) {
    case Look::borderless:
        return borderlessFrame.expandedTo({least, least});
    case Look::bordered:
        return borderedFrame.expandedTo({least, least});
    case Look::compact:
        return {std::max(leastCompactWidth, side), std::max(leastCompactWidth, side) + 4};
    case Look::menuRow:
        return {3 * rowSidePadding + button.fontMetrics.horizontalAdvance(button.text) + side,
                2 * rowPadding + std::max(button.fontMetrics.height(), side)};
    default:
        return {};
    }
}

}  // namespace marlevo
