#pragma once

#include <QPainter>
#include <QRect>

namespace marlevo {

/// The soft shadow around the canvas: black at 15 %, blur radius 4, 2 points downwards.
namespace DropShadow {

/// The extent of the shadow beyond the canvas, in view points.
inline constexpr int reach = 8;

/// Paints the part of the shadow that is in `exposed` and outside of `canvas`. Both are in the
/// painter's coordinates.
void paint(QPainter& painter, const QRectF& canvas, const QRect& exposed);

}  // namespace DropShadow

}  // namespace marlevo
