#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace marlevo {

/// What our own controls are multiplied with while they are disabled.
inline constexpr double disabledOpacity = 0.35;

struct Outline {
    QColor color;
    double width = 0;  ///< 0 paints none
};

/// The outline lies within the rectangle, whole.
void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
                      const Outline& outline = {});

/// Shows that the control that fills `rect` has the keyboard.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius);

}  // namespace marlevo
