#pragma once

#include "ui/controls/ControlPainting.h"
#include "ui/controls/ToolButton.h"

#include <QMargins>
#include <QSize>
#include <QStyle>
#include <QStyleOption>

class QPainter;

// How MarlevoStyle paints and measures the toolkit's controls, by family. For the style only.
namespace marlevo {

class ContinuousSlider;

struct ControlState {
    explicit ControlState(const QStyleOption& option)
        : isEnabled(option.state.testFlag(QStyle::State_Enabled)),
          isDown(option.state.testFlag(QStyle::State_Sunken)),
          isChecked(option.state.testFlag(QStyle::State_On)),
          isHovered(isEnabled && option.state.testFlag(QStyle::State_MouseOver)),
          hasFocus(option.state.testFlag(QStyle::State_HasFocus)) {}

    /// The opacity of a grey fill.
    double fill() const {
        return isDown ? opacity::pressed : isHovered ? opacity::hovered : opacity::resting;
    }

    bool isEnabled;
    bool isDown;
    bool isChecked;
    bool isHovered;
    bool hasFocus;
};

/// Of push buttons and fields, in view points.
inline constexpr double fieldRadius = 5;

/// Whether the push button is the default one and enabled: blue with white text.
bool isProminent(const QStyleOptionButton& button);
void paintPushButton(QPainter& painter, const QStyleOptionButton& button);
/// Added to what the base style adds to a push button, in view points.
inline constexpr QSize pushButtonRoom(12, 2);

/// Paints the button with its icon, its text and the focus.
void paintToolButton(QPainter& painter, const QStyleOptionToolButton& button,
                     ToolButton::Look look);
/// Empty for the looks that their button measures.
QSize toolButtonSize(const QStyleOptionToolButton& button, ToolButton::Look look);

void paintField(QPainter& painter, const QStyleOptionFrame& field);
/// Between a field's frame and its text on each side, in view points.
inline constexpr int fieldPadding = 3;

int checkBoxSide();
void paintCheckMark(QPainter& painter, const QRectF& box, const QColor& color);
/// A square of that side.
void paintCheckIndicator(QPainter& painter, const QStyleOption& indicator);
void paintCheckBox(QPainter& painter, const QStyleOptionButton& button);
/// With the text in its lines.
QSize checkBoxSize(const QStyleOptionButton& button);
/// With a few letters of the label.
QSize leastCheckBoxSize(const QStyleOptionButton& button);
/// The width of a label in a check box of this width.
int checkBoxLabelRoom(const QStyleOptionButton& button, int width);
void paintSwitch(QPainter& painter, const QStyleOptionButton& button);
QSize switchSize(const QStyleOptionButton& button);
void paintChoiceRow(QPainter& painter, const QStyleOptionButton& button);
QSize choiceRowSize(const QStyleOptionButton& button);

void paintSlider(QPainter& painter, const QStyleOptionSlider& option,
                 const ContinuousSlider& slider);
/// The knob's centre from the left, in view points.
double sliderKnobCenter(const QStyleOptionSlider& slider, int knobSize);

bool isTooltip(const QWidget& widget);
/// The room for the shadow of a menu or a tooltip, inside its window. None where the screen does
/// not show one.
QMargins popupShadow(const QWidget* popup);
/// The panel of a menu, the list of a combo box or a tooltip. Without a shadow it fills the window.
void paintPopupPanel(QPainter& painter, const QRect& rect, const QMargins& shadow);
// In view points.
inline constexpr int menuPadding = 5;  ///< between the panel's edge and the items
inline constexpr int menuScrollerHeight = 18;
inline constexpr int tooltipPadding = 5;
/// Without the shortcut, for which a menu adds room.
QSize menuItemSize(const QStyleOptionMenuItem& item);
/// `mnemonics` shows or hides the underlined letters.
void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item, Qt::TextFlag mnemonics);
void paintMenuScroller(QPainter& painter, const QStyleOption& scroller);

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& bar);
/// The place of a part. A scroll bar has a knob and the room before and behind it, no buttons.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);
inline constexpr int scrollBarWidth = 10;
inline constexpr int leastKnobLength = 24;

}  // namespace marlevo
