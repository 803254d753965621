#pragma once

#include <QFont>

class QWidget;

namespace marlevo {

/// The sizes of text, all in proportion to the desktop's font, which is `body`.
enum class TypeStyle : unsigned char { caption2, caption, callout, body, title3, largeTitle };

QFont typeFont(TypeStyle style, QFont::Weight weight = QFont::Normal);

/// The side, in view points, of the square icon that goes with text of a size.
int iconSide(TypeStyle style);

/// Shows the widget's text in a style of the scale, also after the desktop's font has changed.
void setTypeStyle(QWidget& widget, TypeStyle style, QFont::Weight weight = QFont::Normal);

}  // namespace marlevo
