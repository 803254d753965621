#pragma once

#include <QIcon>
#include <QRectF>

class QColor;
class QPainter;

namespace marlevo {

/// The program's own pictures, one family on a grid of 16 × 16, named after what they show. Their
/// files, of the same names, lie in icons/.
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

/// Paints the icon in one colour, as large as it fits into `rect`, sharp at every scale of the
/// screen.
void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color);

/// The icon of the program itself.
QIcon applicationIcon();

/// The sign beside a question whose answer can destroy something.
QIcon warningIcon();

}  // namespace marlevo
