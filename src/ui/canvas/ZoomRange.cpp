#include "ui/canvas/ZoomRange.h"

#include <algorithm>

namespace marlevo {

namespace {

constexpr double step = 1.2;

// View points beside and below the canvas.
constexpr double sidebarWidth = 220;
constexpr double horizontalMargins = 32;
constexpr double heightBeside = 60;

}  // namespace

double zoomedIn(double zoom) { return std::min(maxZoom, zoom * step); }

double zoomedOut(double zoom) { return zoom / step <= minZoom ? minZoom : zoom / step; }

double fittingZoom(CanvasSize canvas, QSizeF content) {
    const double scaleX = (content.width() - sidebarWidth - horizontalMargins) / canvas.width;
    const double scaleY = (content.height() - heightBeside) / canvas.height;
    return scaleY < scaleX ? scaleY : scaleX;
}

}  // namespace marlevo
