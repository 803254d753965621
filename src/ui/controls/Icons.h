#pragma once

#include <QIcon>
#include <QRectF>

class QColor;
class QPainter;

namespace marlevo {

/// The program's icons, drawn on a grid of 16 × 16 and named after their subjects. The files in
/// icons/ have the same names.
enum class Icon : unsigned char {
    arrowDown,
    arrowPointer,
    arrowUp,
    arrowsOutward,
    checkCircle,
    chevronRight,
    circle,
    documentArrowDown,
    documentPlus,
    eraser,
    eye,
    eyeSlash,
    eyedropper,
    grid,
    layers,
    lineDiagonal,
    minus,
    paintBucket,
    palette,
    pencil,
    photo,
    plus,
    rectangle,
    redoArrow,
    trayArrowDown,
    undoArrow,
};

/// Paints the icon in one colour, as a square in the centre of `rect`, with straight lines on
/// whole device pixels.
void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color);

/// The icon of the program itself.
QIcon applicationIcon();

/// The warning sign of questions whose answer can lose data.
QIcon warningIcon();

}  // namespace marlevo
