#include "platform/qt/Compositing.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/StylePainting.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionMenuItem>
#include <QWidget>

#include <algorithm>

// Menus, the lists of combo boxes and tooltips.
namespace marlevo {

namespace {

// View points.
constexpr double panelRadius = 8;
constexpr double rowRadius = 5;
constexpr int sidePadding = 8;
constexpr int rowPadding = 4;
constexpr int separatorHeight = 9;
constexpr int checkColumn = 22;
constexpr int shortcutGap = 28;
constexpr int arrowColumn = 16;
constexpr int arrowSide = 11;
constexpr int markSide = 14;
constexpr int shadowReach = 6;
constexpr int shadowDrop = 2;

constexpr double quarterTurn = 90;

struct Texts {
    explicit Texts(const QStyleOptionMenuItem& item)
        : label(item.text.section(u'\t', 0, 0)), shortcut(item.text.section(u'\t', 1)) {}
    QString label;
    QString shortcut;
};

/// A chevron that points to the right, turned clockwise by `angle` degrees.
void paintChevron(QPainter& painter, const QRectF& place, double angle, const QColor& color) {
    painter.save();
    painter.translate(place.center());
    painter.rotate(angle);
    paintIcon(painter, Icon::chevronRight,
              {-arrowSide / 2.0, -arrowSide / 2.0, double(arrowSide), double(arrowSide)}, color);
    painter.restore();
}

void paintChoiceMark(QPainter& painter, const QStyleOptionMenuItem& item, const QRect& column,
                     const QColor& color) {
    QRectF mark(0, 0, markSide, markSide);
    mark.moveCenter(QRectF(column).center());
    if (item.checkType == QStyleOptionMenuItem::NonExclusive)
        return paintCheckMark(painter, mark, color);
    constexpr double inset = markSide * 0.3;
    const QRectF dot = mark.adjusted(inset, inset, -inset, -inset);
    paintRoundedRect(painter, dot, dot.width() / 2, color);
}

int labelLeft(const QStyleOptionMenuItem& item) {
    return sidePadding + (item.menuHasCheckableItems ? checkColumn : 0) + item.maxIconWidth;
}

}  // namespace

bool isTooltip(const QWidget& widget) { return widget.inherits("QTipLabel"); }

QMargins popupShadow(const QWidget* popup) {
    const bool hasShadow = popup != nullptr && popup->isWindow() &&
                           popup->testAttribute(Qt::WA_TranslucentBackground) &&
                           isScreenComposited();
    if (!hasShadow) return {};
    // A tooltip has the same margin on all sides.
    return isTooltip(*popup) ? QMargins(8, 8, 8, 8) : QMargins(6, 4, 6, 8);
}

void paintPopupPanel(QPainter& painter, const QRect& rect, const QMargins& shadow) {
    const QColor face = semanticColor(SemanticColor::windowBackground);
    const Outline edge{semanticColor(SemanticColor::outline), 1};
    if (shadow.isNull()) return paintRoundedRect(painter, rect, 0, face, edge);
    const QRectF body = rect.marginsRemoved(shadow);
    QPainterPath outline;
    outline.addRoundedRect(body, panelRadius, panelRadius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, shadowDrop);
    paintShadow(painter, outline, shadowReach, opacity::menuShadow);
    painter.restore();
    paintRoundedRect(painter, body, panelRadius, face, edge);
}

QSize menuItemSize(const QStyleOptionMenuItem& item) {
    if (item.menuItemType == QStyleOptionMenuItem::Separator) return {1, separatorHeight};
    // From the text, because a combo box passes the size of its whole list. A menu adds the width
    // of the longest shortcut.
    const QFontMetrics metrics(item.font);
    const QSize text = metrics.size(Qt::TextSingleLine | Qt::TextShowMnemonic, Texts(item).label);
    const int shortcut = item.reservedShortcutWidth > 0 ? shortcutGap : 0;
    return {labelLeft(item) + text.width() + shortcut + arrowColumn + sidePadding,
            std::max(text.height(), markSide) + 2 * rowPadding};
}

void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item, Qt::TextFlag mnemonics) {
    painter.save();
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(item.rect.left() + sidePadding, item.rect.center().y(),
                         item.rect.width() - 2 * sidePadding, 1,
                         withOpacity(semanticColor(SemanticColor::gray), opacity::menuSeparator));
        return painter.restore();
    }
    const bool isEnabled = item.state.testFlag(QStyle::State_Enabled);
    const bool isSelected = isEnabled && item.state.testFlag(QStyle::State_Selected);
    if (isSelected)
        paintRoundedRect(painter, item.rect, rowRadius, semanticColor(SemanticColor::blue));
    const QColor text = isSelected ? QColor(Qt::white) : semanticColor(SemanticColor::primary);
    const QColor aside = isSelected || !isEnabled ? text : semanticColor(SemanticColor::secondary);
    if (!isEnabled) painter.setOpacity(opacity::disabledMenuItem);
    const QRect content = item.rect.adjusted(sidePadding, 0, -sidePadding, 0);
    const auto column = [&](int left, int width) {
        const QRect place(content.left() + left, content.top(), width, content.height());
        return QStyle::visualRect(item.direction, content, place);
    };

    if (item.checked && item.checkType != QStyleOptionMenuItem::NotCheckable)
        paintChoiceMark(painter, item, column(0, markSide), text);
    painter.setPen(text);
    const int left = labelLeft(item) - sidePadding;
    if (!item.icon.isNull())
        item.icon.paint(&painter, column(left - item.maxIconWidth, item.maxIconWidth),
                        Qt::AlignLeading | Qt::AlignVCenter);
    const Texts texts(item);
    const int right = content.width() - arrowColumn;
    const auto draw = [&](const QString& shown, Qt::Alignment side) {
        painter.drawText(column(left, right - left),
                         int(QStyle::visualAlignment(item.direction, side) | Qt::AlignVCenter) |
                             Qt::TextSingleLine | Qt::TextDontClip | mnemonics,
                         shown);
    };
    painter.setFont(item.font);
    draw(texts.label, Qt::AlignLeft);
    painter.setPen(aside);
    draw(texts.shortcut, Qt::AlignRight);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        paintChevron(painter, column(content.width() - arrowSide, arrowSide),
                     item.direction == Qt::RightToLeft ? 2 * quarterTurn : 0, aside);
    painter.restore();
}

void paintMenuScroller(QPainter& painter, const QStyleOption& scroller) {
    painter.fillRect(scroller.rect, semanticColor(SemanticColor::windowBackground));
    const bool isDown = scroller.state.testFlag(QStyle::State_DownArrow);
    paintChevron(painter, scroller.rect, isDown ? quarterTurn : -quarterTurn,
                 semanticColor(SemanticColor::secondary));
}

}  // namespace marlevo
