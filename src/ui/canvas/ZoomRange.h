#pragma once

#include "model/CanvasSize.h"

#include <QSizeF>

namespace marlevo {

inline constexpr double minZoom = 0.1;
inline constexpr double maxZoom = 5.0;

/// One step closer to the picture, not beyond `maxZoom`.
double zoomedIn(double zoom);

/// One step further away, not below `minZoom`.
double zoomedOut(double zoom);

/// The zoom at which the whole canvas is in sight in a window whose content has this size, in view
/// points; it is not limited to the range. What the window shows beside the canvas counts with
/// fixed measures, whatever it really takes.
double fittingZoom(CanvasSize canvas, QSizeF content);

}  // namespace marlevo
