#pragma once

#include "model/CanvasSize.h"

#include <QSizeF>

namespace marlevo {

/// The size of a canvas on screen at a zoom, in view points. Sides that are NaN or below 0 count as
/// 0; sides are limited to the largest size of a widget.
QSizeF displaySize(CanvasSize canvas, double zoom);

}  // namespace marlevo
