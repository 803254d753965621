#include "ui/canvas/CanvasZoom.h"

#include <QWidget>

#include <algorithm>

namespace marlevo {

namespace {

constexpr double step = 1.2;

// View points beside and below the canvas.
constexpr double sidebarWidth = 220;
constexpr double horizontalMargins = 32;
constexpr double heightBeside = 60;

double displayLength(double length, double zoom) {
    const double shown = length * zoom;
    return shown > 0 ? std::min(shown, double{QWIDGETSIZE_MAX}) : 0;
}

}  // namespace

double zoomedIn(double zoom) { return std::min(maxZoom, zoom * step); }

double zoomedOut(double zoom) { return zoom / step <= minZoom ? minZoom : zoom / step; }

double fittingZoom(CanvasSize canvas, QSizeF content) {
    const double scaleX = (content.width() - sidebarWidth - horizontalMargins) / canvas.width;
    const double scaleY = (content.height() - heightBeside) / canvas.height;
    return scaleY < scaleX ? scaleY : scaleX;
}

QSizeF displaySize(CanvasSize canvas, double zoom) {
    return {displayLength(canvas.width, zoom), displayLength(canvas.height, zoom)};
}

}  // namespace marlevo
