#include "ui/canvas/DisplaySize.h"

#include <QWidget>

#include <algorithm>

namespace marlevo {

namespace {

double displayLength(double length, double zoom) {
    const double shown = length * zoom;
    return shown > 0 ? std::min(shown, double{QWIDGETSIZE_MAX}) : 0;
}

}  // namespace

QSizeF displaySize(CanvasSize canvas, double zoom) {
    return {displayLength(canvas.width, zoom), displayLength(canvas.height, zoom)};
}

}  // namespace marlevo
