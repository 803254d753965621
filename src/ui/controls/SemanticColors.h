#pragma once

#include <QColor>

class QPalette;

namespace marlevo {

/// The purpose of a colour in the user interface. The desktop's palette decides its value.
enum class SemanticColor : unsigned char {
    blue,  ///< chosen items; white text is readable on it
    gray,
    primary,    ///< text
    secondary,  ///< explanations
    tertiary,   ///< text and marks beside other text
    quaternaryFill,
    separator,
    controlBackground,
    windowBackground,
    outline,  ///< of menus and marks; at least 3 : 1 on both backgrounds
    systemRed,
    systemOrange,
    systemYellow,
    systemGreen,
    systemBlue,
    systemPurple,
};

enum class Appearance : unsigned char { light, dark };

/// The appearance of a palette, judged by the lightness of its windows.
Appearance appearanceOf(const QPalette& palette);

/// One colour of the table. Text colours have a contrast of at least 4.5 : 1 on both backgrounds,
/// also with the fills that the program paints over these.
QColor semanticColor(SemanticColor color, Appearance appearance);

/// The colour for the current palette. For use while painting: a change of the palette repaints all
/// widgets. Stored colours must be renewed then (AppearanceNotifier.h).
QColor semanticColor(SemanticColor color);

/// The colour with its opacity multiplied by `opacity`, from 0 to 1.
QColor withOpacity(QColor color, double opacity);

/// Sets the table's colours in a palette, for the toolkit's own controls.
void setSemanticColors(QPalette& palette, Appearance appearance, SemanticColor background);

/// The application's palette with another background than that of windows. Must be set again when
/// the desktop's palette changes.
QPalette semanticPalette(SemanticColor background);

}  // namespace marlevo
