#pragma once

#include "graphics/Color.h"
#include "graphics/Path.h"
#include "graphics/Rect.h"
#include "model/PointList.h"

#include <array>
#include <string_view>

namespace marlevo {

/// One mark on a layer. Has no identity: its layer and its index there address it.
/// A copy shares the points.
struct Stroke {
    enum class ShapeType : unsigned char { freehand, line, rect, ellipse };

    static constexpr std::array allShapeTypes{ShapeType::freehand, ShapeType::line, ShapeType::rect,
                                              ShapeType::ellipse};

    PointList points;  ///< freehand: every position; shapes: start and end; fills: the outline
    Color color;
    double lineWidth = 0;  ///< canvas pixels
    double opacity = 0;    ///< 0 to 1, of the whole mark
    bool isEraser = false;
    bool isFill = false;
    ShapeType shapeType = ShapeType::freehand;

    /// The outline in canvas coordinates. A line runs to the last point.
    Path path() const;

    /// The freehand outline: quadratic curves through the midpoints of neighbouring points, exactly
    /// from the first point to the last. Empty for fewer than two points.
    Path smoothPath() const;

    /// The rectangle that the first two points span; with one point, a rectangle of no size there.
    /// There must be a point.
    Rect boundingCGRect() const;

    /// The smallest rectangle that holds every point; all zero without points.
    Rect boundingRect() const;
};

/// The name under which a shape type is stored.
constexpr std::string_view rawValue(Stroke::ShapeType type) {
    switch (type) {
    case Stroke::ShapeType::freehand:
        return "freehand";
    case Stroke::ShapeType::line:
        return "line";
    case Stroke::ShapeType::rect:
        return "rect";
    case Stroke::ShapeType::ellipse:
        return "ellipse";
    }
    return {};
}

}  // namespace marlevo
