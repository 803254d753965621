#include "ui/controls/MarlevoStyle.h"

#include "platform/qt/DesktopSettings.h"
#include "ui/controls/ChoiceRow.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/SmallButton.h"
#include "ui/controls/StylePainting.h"
#include "ui/controls/Switch.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
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
    QProxyStyle::drawControl(element, option, painter, widget);
    // The other push buttons show the focus as the default button, which these never are.
    if (element == CE_PushButton && qobject_cast<const SmallButton*>(widget) &&
        option->state.testFlag(State_HasFocus))
        paintPushButtonFocus(*painter, option->rect);
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
            return paintSlider(*painter, *state, slider->knobSize(), slider->isSliderDown());
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
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size + pushButtonRoom : size;
}

QRect MarlevoStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
    if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect) return option->rect;
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
