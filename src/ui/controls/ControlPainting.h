#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QPainterPath;

namespace marlevo {

/// How much of a colour a control shows, by what is painted.
namespace opacity {
// Of a control as a whole.
inline constexpr double disabled = 0.35;
inline constexpr double disabledMenuItem = 0.55;  ///< at least 3 : 1 on the menu
inline constexpr double disabledFace = 0.5;       ///< of push buttons and fields

// Of grey.
inline constexpr double resting = 0.06;
inline constexpr double hovered = 0.12;
inline constexpr double pressed = 0.25;
inline constexpr double outline = 0.35;
inline constexpr double compactHovered = 0.18;
inline constexpr double compactPressed = 0.3;
inline constexpr double scrollKnob = 0.5;
inline constexpr double scrollKnobHovered = 0.85;
inline constexpr double swatchOutline = 0.3;
inline constexpr double swatchHovered = 0.6;
inline constexpr double thumbnailOutline = 0.25;
inline constexpr double thumbnailPlaceholder = 0.08;
inline constexpr double inactiveDot = 0.15;
inline constexpr double menuSeparator = 0.4;

// Of the text's colour.
inline constexpr double buttonEdge = 0.22;
inline constexpr double buttonEdgeDisabled = 0.12;
inline constexpr double buttonHovered = 0.06;
inline constexpr double buttonPressed = 0.14;
inline constexpr double fieldEdge = 0.3;
inline constexpr double fieldEdgeDisabled = 0.15;
inline constexpr double choiceHovered = 0.05;

// Of blue.
inline constexpr double chosenTool = 0.15;
inline constexpr double chosenRow = 0.1;
inline constexpr double listRow = 0.08;  ///< of grey while only hovered
inline constexpr double menuRow = 0.15;
inline constexpr double menuRowPressed = 0.3;

// Of black.
inline constexpr double defaultButtonHovered = 0.07;
inline constexpr double sheetDimming = 0.3;
inline constexpr double popoverShadow = 0.165;
inline constexpr double menuShadow = 0.24;
}  // namespace opacity

struct Outline {
    QColor color;
    double width = 0;  ///< 0 paints none
};

/// The whole outline is inside the rectangle.
void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
                      const Outline& outline = {});

/// Paints a line inside the edge of an area whose colour is hardly visible on the background of the
/// controls. The line has a contrast of at least 3 : 1 to that background.
void paintColorEdge(QPainter& painter, const QRectF& rect, double radius, const QColor& color);

/// Paints a soft black shadow around a shape as far as `reach` view points. `opacity` is that at
/// the shape's edge.
void paintShadow(QPainter& painter, const QPainterPath& shape, int reach, double opacity);

/// Shows the focus of the control that fills `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius);

}  // namespace marlevo
