#pragma once

#include <QPainter>
#include <QRect>

namespace marlevo {

/// The soft shadow around the canvas: black at 15 %, blur radius 4, 2 points downwards.
namespace DropShadow {

/// How far beyond the canvas the shadow reaches, in view points.
inline constexpr int reach = 8;

/// Paints the shadow of `canvas` around it, as far as it touches `exposed`; nothing inside. Both in
/// the painter's coordinates.
void paint(QPainter& painter, const QRectF& canvas, const QRect& exposed);

}  // namespace DropShadow

}  // namespace marlevo
