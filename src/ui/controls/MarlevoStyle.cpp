#include "ui/controls/MarlevoStyle.h"

#include "platform/qt/Compositing.h"
#include "platform/qt/DesktopSettings.h"
#include "ui/controls/CheckBox.h"
#include "ui/controls/ChoiceRow.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/SmallButton.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/Switch.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionMenuItem>
#include <QStyleOptionSlider>
#include <QStyleOptionToolButton>

namespace marlevo {

namespace {

/// Some dark desktops give the toolkit a light palette, so their setting has precedence.
Appearance wantedAppearance(const QPalette& palette) {
    using enum DesktopSettings::ColorScheme;
    switch (DesktopSettings::instance().colorScheme()) {
    case dark:
        return Appearance::dark;
    case light:
        return Appearance::light;
    case any:
        break;
    }
    return appearanceOf(palette);
}

}  // namespace

MarlevoStyle::MarlevoStyle() : QProxyStyle(QStringLiteral("fusion")) {
    // Setting the desktop's own palette again polishes it for the new scheme.
    connect(&DesktopSettings::instance(), &DesktopSettings::colorSchemeChanged, this,
            [] { QApplication::setPalette(QPalette()); });
}

void MarlevoStyle::polish(QPalette& palette) {
    setSemanticColors(palette, wantedAppearance(palette), SemanticColor::windowBackground);
}

void MarlevoStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    auto* const menu = qobject_cast<QMenu*>(widget);
    if (!menu && !isTooltip(*widget)) return;
    // An opaque window needs no mask where transparent pixels would be black.
    widget->setAttribute(Qt::WA_TranslucentBackground, isScreenComposited());
    if (!menu) return;
    menu->setContentsMargins(popupShadow(menu));
    menu->installEventFilter(this);
}

// The toolkit places the window of a menu. The menu itself is smaller by its shadow.
bool MarlevoStyle::eventFilter(QObject* watched, QEvent* event) {
    auto* const menu = qobject_cast<QMenu*>(watched);
    if (menu && event->type() == QEvent::Show && !event->spontaneous()) {
        const QMargins shadow = menu->contentsMargins();
        // The items of a submenu are aligned already.
        const bool isSubmenu = qobject_cast<QMenu*>(menu->parentWidget()) != nullptr;
        menu->move(menu->x() + (menu->isRightToLeft() ? shadow.right() : -shadow.left()),
                   menu->y() - (isSubmenu ? 0 : shadow.top()));
    }
    return QProxyStyle::eventFilter(watched, event);
}

void MarlevoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (element == PE_PanelButtonCommand) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button && !button->features.testFlag(QStyleOptionButton::Flat))
            return paintPushButton(*painter, *button);
    }
    if (element == PE_PanelLineEdit) {
        if (const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
            field && field->lineWidth > 0)
            return paintField(*painter, *field);
    }
    if (element == PE_PanelMenu || element == PE_PanelTipLabel)
        return paintPopupPanel(*painter, option->rect, popupShadow(widget));
    if (element == PE_FrameMenu) return;  // a part of the panel
    if (element == PE_IndicatorCheckBox) return paintCheckIndicator(*painter, *option);
    if (element == PE_PanelScrollAreaCorner)
        return painter->fillRect(option->rect, option->palette.window());
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void MarlevoStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    if (element == CE_PushButtonLabel) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button && isProminent(*button)) {
            QStyleOptionButton onBlue = *button;
            onBlue.palette.setColor(QPalette::ButtonText, Qt::white);
            return QProxyStyle::drawControl(element, &onBlue, painter, widget);
        }
    }
    if (element == CE_CheckBox || element == CE_RadioButton) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            if (qobject_cast<const Switch*>(widget)) return paintSwitch(*painter, *button);
            if (qobject_cast<const ChoiceRow*>(widget)) return paintChoiceRow(*painter, *button);
            if (element == CE_CheckBox) return paintCheckBox(*painter, *button);
        }
    }
    if (element == CE_MenuItem) {
        const bool isUnderlined = proxy()->styleHint(SH_UnderlineShortcut, option, widget) != 0;
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            QStyleOptionMenuItem inset = *item;
            // The list of a combo box has no padding of its own.
            if (!qobject_cast<const QMenu*>(widget))
                inset.rect.adjust(menuPadding, 0, -menuPadding, 0);
            return paintMenuItem(*painter, inset,
                                 isUnderlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
        }
    }
    if (element == CE_MenuScroller) return paintMenuScroller(*painter, *option);
    QProxyStyle::drawControl(element, option, painter, widget);
    // A default button is blue with and without the focus. Small ones take the focus by Tab only.
    const bool isByKey = option->state.testFlag(State_KeyboardFocusChange) ||
                         qobject_cast<const SmallButton*>(widget);
    if (element == CE_PushButton && isByKey && option->state.testFlag(State_HasFocus))
        paintFocusRing(*painter, option->rect, fieldRadius);
}

void MarlevoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return paintScrollBar(*painter, *bar);
    }
    if (const auto* tool = qobject_cast<const ToolButton*>(widget); control == CC_ToolButton) {
        const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        if (tool && button) return paintToolButton(*painter, *button, tool->look());
    }
    if (const auto* const slider = qobject_cast<const ContinuousSlider*>(widget)) {
        if (const auto* state = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return paintSlider(*painter, *state, *slider);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect MarlevoStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return scrollBarPart(*bar, part);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize MarlevoStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
    if (const auto* tool = qobject_cast<const ToolButton*>(widget); type == CT_ToolButton) {
        const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        if (tool && button) return toolButtonSize(*button, tool->look());
    }
    if (type == CT_CheckBox || type == CT_RadioButton) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            if (qobject_cast<const Switch*>(widget)) return switchSize(*button);
            if (qobject_cast<const ChoiceRow*>(widget)) return choiceRowSize(*button);
            if (type == CT_CheckBox) return checkBoxSize(*button);
        }
    }
    if (type == CT_MenuItem) {
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menuItemSize(*item);
    }
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size + pushButtonRoom : size;
}

QRect MarlevoStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
    const bool isWholeTarget = qobject_cast<const CheckBox*>(widget) ||
                               qobject_cast<const Switch*>(widget) ||
                               qobject_cast<const ChoiceRow*>(widget);
    if (isWholeTarget && (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect))
        return option->rect;
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element != SE_LineEditContents) return rect;
    const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
    return field && field->lineWidth > 0 ? rect.adjusted(fieldPadding, 0, -fieldPadding, 0) : rect;
}

int MarlevoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    if (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight) return checkBoxSide();
    if (metric == PM_ScrollBarExtent) return scrollBarWidth;
    if (metric == PM_ScrollBarSliderMin) return leastKnobLength;
    if (metric == PM_MenuPanelWidth) return 0;
    if (metric == PM_MenuHMargin || metric == PM_MenuVMargin) return menuPadding;
    if (metric == PM_SubMenuOverlap) return menuPadding - 1;  // the edges of both coincide
    if (metric == PM_MenuScrollerHeight) return menuScrollerHeight;
    if (metric == PM_ToolTipLabelFrameWidth) return tooltipPadding + popupShadow(widget).left();
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int MarlevoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    const int value = QProxyStyle::styleHint(hint, option, widget, returned);
    // The toolkit's value on a desktop that defines no order.
    if (hint == SH_DialogButtonLayout && value == QDialogButtonBox::WinLayout)
        return QDialogButtonBox::GnomeLayout;
    return value;
}

QIcon MarlevoStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    if (icon == SP_MessageBoxWarning) return warningIcon();
    return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace marlevo
