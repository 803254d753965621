#pragma once

#include "model/CanvasSize.h"

#include <QSizeF>

namespace marlevo {

/// How large a canvas is shown at a zoom, in view points. Sides that are no number or below 0 count
/// as 0; sides beyond what a widget can measure are cut there.
QSizeF displaySize(CanvasSize canvas, double zoom);

}  // namespace marlevo
