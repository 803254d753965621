#pragma once

#include <QFont>

class QWidget;

namespace marlevo {

/// The sizes of text, in proportion to the desktop's font, which is `body`.
enum class TypeStyle : unsigned char { caption2, caption, callout, body, title3, largeTitle };

QFont typeFont(TypeStyle style, QFont::Weight weight = QFont::Normal);

/// The side of a square icon beside text of this size, in view points.
int iconSide(TypeStyle style);

/// A length of a mark beside text, such as a check box: `points` view points beside a desktop font
/// of up to 16 pixels, and in proportion to a larger font.
int grownWithText(int points);

/// Sets the widget's font to a style of the scale and renews it when the desktop's font changes.
void setTypeStyle(QWidget& widget, TypeStyle style, QFont::Weight weight = QFont::Normal);

}  // namespace marlevo
