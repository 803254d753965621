#pragma once

#include <QColor>

class QPalette;

namespace marlevo {

/// What a colour of the user interface is for, whatever the desktop's palette.
enum class SemanticColor : unsigned char {
    blue,  ///< what is chosen; white text is readable on it
    gray,
    primary,    ///< text
    secondary,  ///< text that explains
    tertiary,   ///< text and marks beside other text
    quaternaryFill,
    separator,
    controlBackground,
    windowBackground,
    systemRed,
    systemOrange,
    systemYellow,
    systemGreen,
    systemBlue,
    systemPurple,
};

enum class Appearance : unsigned char { light, dark };

/// What a palette is meant as, by the lightness of its windows.
Appearance appearanceOf(const QPalette& palette);

/// One colour of the table. Text colours have a contrast of at least 4.5 : 1 on both backgrounds
/// and on the fills that the program lays over them.
QColor semanticColor(SemanticColor color, Appearance appearance);

/// As the desktop's palette is now. To be asked for while painting: widgets are painted anew when
/// the palette changes; what is kept must be renewed then (AppearanceNotifier.h).
QColor semanticColor(SemanticColor color);

/// The colour at a share, from 0 to 1, of its own opacity.
QColor withOpacity(QColor color, double opacity);

/// Puts the table's colours into a palette, for the toolkit's controls among our own.
void setSemanticColors(QPalette& palette, Appearance appearance, SemanticColor background);

/// The application's palette for another background than that of windows; to be set again when the
/// desktop's changes.
QPalette semanticPalette(SemanticColor background);

}  // namespace marlevo
