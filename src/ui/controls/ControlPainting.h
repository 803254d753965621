#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace marlevo {

/// Of a disabled control as a whole.
inline constexpr double disabledOpacity = 0.35;

// The opacities of grey in controls without a colour of their own.
inline constexpr double restingFill = 0.06;
inline constexpr double hoveredFill = 0.12;
inline constexpr double pressedFill = 0.25;
inline constexpr double outlineOpacity = 0.35;
inline constexpr double swatchOutline = 0.3;
inline constexpr double hoveredSwatchOutline = 0.6;
inline constexpr double thumbnailOutline = 0.25;
inline constexpr double thumbnailPlaceholder = 0.08;
inline constexpr double inactiveDot = 0.15;

struct Outline {
    QColor color;
    double width = 0;  ///< 0 paints none
};

/// The whole outline is inside the rectangle.
void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
                      const Outline& outline = {});

/// Shows the focus of the control that fills `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius);

}  // namespace marlevo
