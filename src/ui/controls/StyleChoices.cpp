#include "ui/controls/CheckBox.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/TypeScale.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>

#include <algorithm>

// Check boxes, switches and rows of a list of choices.
namespace marlevo {

namespace {

// View points.
constexpr int boxSide = 15;
constexpr double boxRadius = 3.5;
constexpr int labelGap = 6;
constexpr QSize usualSwitchTrack(34, 20);
constexpr int knobMargin = 2;
constexpr int switchGap = 8;
constexpr int rowSidePadding = 10;
constexpr int rowPadding = 8;
constexpr int rowMarkGap = 8;
constexpr double rowRadius = 8;

/// Of a text in one line or more.
QSize textSize(const QStyleOptionButton& button) {
    return button.fontMetrics.size(Qt::TextShowMnemonic, button.text);
}

/// At the leading side.
int textAlignment(const QStyleOptionButton& button) {
    return QStyle::visualAlignment(button.direction, Qt::AlignLeft) | Qt::AlignVCenter |
           Qt::TextShowMnemonic;
}

/// Elided where it has no room.
void paintText(QPainter& painter, const QStyleOptionButton& button, const QRect& place) {
    painter.setPen(semanticColor(SemanticColor::primary));
    painter.drawText(place, textAlignment(button),
                     button.fontMetrics.elidedText(button.text, Qt::ElideRight, place.width(),
                                                   Qt::TextShowMnemonic));
}

void paintMark(QPainter& painter, const QRectF& box, const QPainterPath& mark,
               const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(mark);
}

QSize switchTrack() {
    return {grownWithText(usualSwitchTrack.width()), grownWithText(usualSwitchTrack.height())};
}

void paintDash(QPainter& painter, const QRectF& box, const QColor& color) {
    QPainterPath dash(box.center() - QPointF(0.25, 0) * box.width());
    dash.lineTo(box.center() + QPointF(0.25, 0) * box.width());
    paintMark(painter, box, dash, color);
}

int checkBoxLabelLeft(const QStyleOptionButton& button) {
    const int icon = button.icon.isNull() ? 0 : iconSide(TypeStyle::callout) + labelGap;
    return CheckBox::focusRoom + checkBoxSide() + labelGap + icon;
}

}  // namespace

int checkBoxSide() { return grownWithText(boxSide); }

void paintCheckMark(QPainter& painter, const QRectF& box, const QColor& color) {
    QPainterPath mark(box.topLeft() + QPointF(0.24, 0.53) * box.width());
    mark.lineTo(box.topLeft() + QPointF(0.43, 0.72) * box.width());
    mark.lineTo(box.topLeft() + QPointF(0.77, 0.29) * box.width());
    paintMark(painter, box, mark, color);
}

QSize checkBoxSize(const QStyleOptionButton& button) {
    const QSize text = textSize(button);
    return {checkBoxLabelLeft(button) + text.width() + 1 + CheckBox::focusRoom,
            std::max(text.height(), checkBoxSide()) + 2 * CheckBox::focusRoom};
}

int checkBoxLabelRoom(const QStyleOptionButton& button, int width) {
    return width - checkBoxLabelLeft(button) - 1 - CheckBox::focusRoom;
}

QSize leastCheckBoxSize(const QStyleOptionButton& button) {
    QStyleOptionButton shortened = button;
    shortened.text = QStringLiteral("nn…");
    const QSize whole = checkBoxSize(button);
    return {std::min(whole.width(), checkBoxSize(shortened).width()), whole.height()};
}

void paintCheckIndicator(QPainter& painter, const QStyleOption& indicator) {
    painter.save();
    if (!indicator.state.testFlag(QStyle::State_Enabled)) painter.setOpacity(opacity::disabled);
    const QRectF box = indicator.rect;
    const bool isPartial = indicator.state.testFlag(QStyle::State_NoChange);
    if (isPartial || indicator.state.testFlag(QStyle::State_On)) {
        paintRoundedRect(painter, box, boxRadius, semanticColor(SemanticColor::blue));
        isPartial ? paintDash(painter, box, Qt::white) : paintCheckMark(painter, box, Qt::white);
    } else {
        const QColor gray = semanticColor(SemanticColor::gray);
        paintRoundedRect(painter, box, boxRadius, withOpacity(gray, ControlState(indicator).fill()),
                         {gray, 1});
    }
    painter.restore();
}

void paintCheckBox(QPainter& painter, const QStyleOptionButton& button) {
    const auto mirrored = [&](int left, int width, int height) {
        const QRect place(left, (button.rect.height() - height) / 2, width, height);
        return QStyle::visualRect(button.direction, button.rect,
                                  place.translated(button.rect.topLeft()));
    };
    QStyleOption indicator = button;
    const int box = checkBoxSide();
    indicator.rect = mirrored(CheckBox::focusRoom, box, box);
    paintCheckIndicator(painter, indicator);

    painter.save();
    if (!button.state.testFlag(QStyle::State_Enabled)) painter.setOpacity(opacity::disabled);
    const int left = checkBoxLabelLeft(button);
    if (!button.icon.isNull()) {
        const int side = iconSide(TypeStyle::callout);
        painter.setPen(semanticColor(SemanticColor::primary));
        const QRect place = mirrored(left - labelGap - side, side, side);
        button.icon.paint(&painter, place);
    }
    const QRect label = mirrored(left, button.rect.width() - left, button.rect.height());
    painter.setPen(semanticColor(SemanticColor::primary));
    painter.drawText(label, textAlignment(button), button.text);
    painter.restore();
    if (button.state.testFlag(QStyle::State_HasFocus))
        paintFocusRing(painter, button.rect, boxRadius + CheckBox::focusRoom);
}

QSize switchSize(const QStyleOptionButton& button) {
    return {textSize(button).width() + switchGap + switchTrack().width(),
            std::max(button.fontMetrics.height(), switchTrack().height()) + 4};
}

void paintSwitch(QPainter& painter, const QStyleOptionButton& button) {
    painter.save();
    if (!button.state.testFlag(QStyle::State_Enabled)) painter.setOpacity(opacity::disabled);
    paintText(painter, button, button.rect);

    const bool isOn = button.state.testFlag(QStyle::State_On);
    const QRectF track = QStyle::alignedRect(button.direction, Qt::AlignTrailing | Qt::AlignVCenter,
                                             switchTrack(), button.rect);
    const double radius = track.height() / 2;
    paintRoundedRect(painter, track, radius,
                     semanticColor(isOn ? SemanticColor::blue : SemanticColor::gray));
    const double side = track.height() - 2 * knobMargin;
    const bool isAtRight = isOn == (button.direction == Qt::LeftToRight);
    const double left = isAtRight ? track.right() - knobMargin - side : track.left() + knobMargin;
    paintRoundedRect(painter, {left, track.top() + knobMargin, side, side}, side / 2, Qt::white);
    painter.restore();
    if (button.state.testFlag(QStyle::State_HasFocus)) paintFocusRing(painter, track, radius);
}

QSize choiceRowSize(const QStyleOptionButton& button) {
    const int mark = iconSide(TypeStyle::title3);
    return {textSize(button).width() + rowMarkGap + mark + 2 * rowSidePadding,
            std::max(button.fontMetrics.height(), mark) + 2 * rowPadding};
}

void paintChoiceRow(QPainter& painter, const QStyleOptionButton& button) {
    const QColor blue = semanticColor(SemanticColor::blue);
    const bool isChosen = button.state.testFlag(QStyle::State_On);
    if (isChosen)
        paintRoundedRect(painter, button.rect, rowRadius, withOpacity(blue, opacity::chosenRow));
    else if (button.state.testFlag(QStyle::State_MouseOver))
        paintRoundedRect(
            painter, button.rect, rowRadius,
            withOpacity(semanticColor(SemanticColor::primary), opacity::choiceHovered));

    const QRect inside =
        button.rect.adjusted(rowSidePadding, rowPadding, -rowSidePadding, -rowPadding);
    const int side = iconSide(TypeStyle::title3);
    QRect text = inside;
    text.setWidth(inside.width() - side - rowMarkGap);
    paintText(painter, button, QStyle::visualRect(button.direction, inside, text));
    if (isChosen) {
        const QRect mark = QStyle::alignedRect(
            button.direction, Qt::AlignTrailing | Qt::AlignVCenter, QSize(side, side), inside);
        paintIcon(painter, Icon::checkCircle, mark, blue);
    }
    if (button.state.testFlag(QStyle::State_HasFocus))
        paintFocusRing(painter, button.rect, rowRadius);
}

}  // namespace marlevo
