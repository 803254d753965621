#pragma once

#include "ui/controls/ToolButton.h"

#include <QSize>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionFrame;
class QStyleOptionSlider;
class QStyleOptionToolButton;

// How MarlevoStyle paints and measures the toolkit's controls, by family. For the style only.
namespace marlevo {

/// Whether the push button is the default one and enabled: blue with white text.
bool isProminent(const QStyleOptionButton& button);
void paintPushButton(QPainter& painter, const QStyleOptionButton& button);
void paintPushButtonFocus(QPainter& painter, const QRect& rect);
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

/// A horizontal slider.
void paintSlider(QPainter& painter, const QStyleOptionSlider& slider, int knobSize, bool isHeld);
/// The knob's centre from the left, in view points.
double sliderKnobCenter(const QStyleOptionSlider& slider, int knobSize);

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& bar);
/// The place of a part. A scroll bar has a knob and the room before and behind it, no buttons.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);
inline constexpr int scrollBarWidth = 10;
inline constexpr int leastKnobLength = 24;

}  // namespace marlevo
