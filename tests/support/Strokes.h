#pragma once

#include "model/Stroke.h"

#include <utility>

namespace marlevo {

/// A black, opaque stroke for tests.
inline Stroke makeStroke(PointList points, double lineWidth = 3,
                         Stroke::ShapeType shapeType = Stroke::ShapeType::freehand) {
    return {std::move(points), black, lineWidth, 1.0, false, false, shapeType};
}

}  // namespace marlevo
