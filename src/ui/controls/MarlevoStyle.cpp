#include "ui/controls/MarlevoStyle.h"

#include "platform/qt/DesktopSettings.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionSlider>

#include <algorithm>

namespace marlevo {

namespace {

// View points.
constexpr double radius = 5;
constexpr QSize roomInButton(12, 2);
constexpr int fieldPadding = 3;
constexpr int scrollBarWidth = 10;
constexpr int knobMargin = 2;
constexpr int leastKnob = 24;

/// Not every desktop that is dark gives the toolkit a dark palette.
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

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

bool isProminent(const QStyleOptionButton& button) {
    return button.features.testFlag(QStyleOptionButton::DefaultButton) &&
           has(button, QStyle::State_Enabled);
}

void paintButton(QPainter& painter, const QStyleOptionButton& button) {
    const QColor ink = semanticColor(SemanticColor::primary);
    const bool isDown = has(button, QStyle::State_Sunken) || has(button, QStyle::State_On);
    const bool isHovered =
        has(button, QStyle::State_MouseOver) && has(button, QStyle::State_Enabled);
    if (isProminent(button)) {
        const QColor blue = semanticColor(SemanticColor::blue);
        paintRoundedRect(painter, button.rect, radius, isDown ? blue.darker(115) : blue);
        if (isHovered && !isDown)
            paintRoundedRect(painter, button.rect, radius, withOpacity(Qt::black, 0.07));
        return;
    }
    QColor face = semanticColor(SemanticColor::controlBackground);
    double border = 0.22;
    if (!has(button, QStyle::State_Enabled)) {
        face = withOpacity(face, 0.5);
        border = 0.12;
    }
    paintRoundedRect(painter, button.rect, radius, face, {withOpacity(ink, border), 1});
    if (isDown || isHovered)
        paintRoundedRect(painter, button.rect, radius, withOpacity(ink, isDown ? 0.14 : 0.06));
}

void paintField(QPainter& painter, const QStyleOptionFrame& field) {
    const bool isEnabled = has(field, QStyle::State_Enabled);
    const bool isFocused = has(field, QStyle::State_HasFocus) && isEnabled;
    const QColor ink = semanticColor(SemanticColor::primary);
    const QColor face = semanticColor(SemanticColor::controlBackground);
    const Outline outline = isFocused ? Outline{semanticColor(SemanticColor::blue), 2}
                                      : Outline{withOpacity(ink, isEnabled ? 0.3 : 0.15), 1};
    paintRoundedRect(painter, field.rect, radius, isEnabled ? face : withOpacity(face, 0.5),
                     outline);
}

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& knob) {
    painter.fillRect(bar.rect, bar.palette.window());
    if (bar.maximum <= bar.minimum) return;
    const bool isActive =
        has(bar, QStyle::State_MouseOver) || bar.activeSubControls == QStyle::SC_ScrollBarSlider;
    const QRectF inside = QRectF(knob).adjusted(knobMargin, knobMargin, -knobMargin, -knobMargin);
    paintRoundedRect(painter, inside, std::min(inside.width(), inside.height()) / 2,
                     withOpacity(semanticColor(SemanticColor::gray), isActive ? 0.85 : 0.5));
}

/// A bar is its knob and the room before and behind it.
QRect partOfScrollBar(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool isHorizontal = bar.orientation == Qt::Horizontal;
    const int length = isHorizontal ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    const int share =
        int(qint64(length) * bar.pageStep / std::max<qint64>(range + bar.pageStep, 1));
    const int knob = range > 0 ? std::clamp(share, std::min(leastKnob, length), length) : length;
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - knob, bar.upsideDown);
    const auto stretch = [&](int from, int to) {
        const QRect place = isHorizontal ? QRect(from, 0, to - from, bar.rect.height())
                                         : QRect(0, from, bar.rect.width(), to - from);
        return QStyle::visualRect(bar.direction, bar.rect, place.translated(bar.rect.topLeft()));
    };
    switch (part) {
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, start + knob);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + knob, length);
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    default:
        return {};
    }
}

}  // namespace

MarlevoStyle::MarlevoStyle() : QProxyStyle(QStringLiteral("fusion")) {
    // The desktop's palette as it would be by itself; the style has its say on the way.
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
            return paintButton(*painter, *button);
    }
    if (element == PE_PanelLineEdit) {
        if (const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
            field && field->lineWidth > 0)
            return paintField(*painter, *field);
    }
    if (element == PE_FrameFocusRect && widget && widget->inherits("QPushButton")) {
        if (has(*option, State_KeyboardFocusChange))
            paintFocusRing(*painter, widget->rect(), radius);
        return;
    }
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
    QProxyStyle::drawControl(element, option, painter, widget);
}

void MarlevoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return paintScrollBar(*painter, *bar, partOfScrollBar(*bar, SC_ScrollBarSlider));
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect MarlevoStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return partOfScrollBar(*bar, part);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize MarlevoStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size + roomInButton : size;
}

QRect MarlevoStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element != SE_LineEditContents) return rect;
    const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
    return field && field->lineWidth > 0 ? rect.adjusted(fieldPadding, 0, -fieldPadding, 0) : rect;
}

int MarlevoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent) return scrollBarWidth;
    if (metric == PM_ScrollBarSliderMin) return leastKnob;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int MarlevoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon MarlevoStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    if (icon == SP_MessageBoxWarning) return warningIcon();
    return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace marlevo
