#pragma once

#include <QPainterPath>

#include <vector>

class QPainter;
class QSvgRenderer;

namespace marlevo {

/// The strokes of an icon, in units of its drawing. Paints them with straight lines on whole
/// pixels.
class IconDrawing {
public:
    /// The side of the square in which icons are drawn.
    static constexpr double side = 16;
    /// Of the straight lines.
    static constexpr double lineWidth = 1.5;

    /// An empty drawing.
    IconDrawing() = default;
    explicit IconDrawing(QSvgRenderer& renderer);

    /// Paints the drawing in black, as a square of `pixels` in the top left corner of an image.
    /// Horizontal and vertical lines are moved to whole pixels, with what is between them. Shapes
    /// that have such lines are drawn in a whole number of pixels.
    void paint(QPainter& painter, int pixels) const;

private:
    struct Shape {
        QPainterPath path;
        double lineWidth;  ///< 0 for an area
    };
    friend class Recorder;

    std::vector<Shape> shapes_;
};

}  // namespace marlevo
