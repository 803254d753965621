#pragma once

#include "model/CanvasSize.h"

#include <QSizeF>

namespace marlevo {

inline constexpr double minZoom = 0.1;
inline constexpr double maxZoom = 5.0;

/// One step larger, at most `maxZoom`.
double zoomedIn(double zoom);

/// One step smaller, at least `minZoom`.
double zoomedOut(double zoom);

/// The zoom at which the whole canvas fits a window with content of this size, in view points; not
/// limited to the range. Fixed measures represent the sidebar and the status bar, whatever their
/// real sizes.
double fittingZoom(CanvasSize canvas, QSizeF content);

/// The size of a canvas on screen at a zoom, in view points. Sides that are NaN or below 0 count as
/// 0; sides are limited to the largest size of a widget.
QSizeF displaySize(CanvasSize canvas, double zoom);

}  // namespace marlevo
