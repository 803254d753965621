#include "bench/window/Scene.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace marlevo {

std::vector<Point> scribble(Random& random, std::size_t points, const CanvasSize& canvas) {
    constexpr double step = 8;
    constexpr double margin = 2 * step;
    std::vector<Point> way;
    Point at{random.between(margin, canvas.width - margin),
             random.between(margin, canvas.height - margin)};
    double direction = random.between(0, 2 * std::numbers::pi);
    double turn = 0;
    for (std::size_t i = 0; i < points; ++i) {
        way.push_back(at);
        turn = 0.8 * turn + random.between(-0.2, 0.2);
        direction += turn;
        Point next{at.x + step * std::cos(direction), at.y + step * std::sin(direction)};
        const bool leaves = next.x < margin || next.x > canvas.width - margin || next.y < margin ||
                            next.y > canvas.height - margin;
        if (leaves) {
            direction = std::atan2(canvas.height / 2 - at.y, canvas.width / 2 - at.x);
            next = {at.x + step * std::cos(direction), at.y + step * std::sin(direction)};
        }
        at = next;
    }
    return way;
}

LayerList scribbles(std::size_t strokes, const CanvasSize& canvas) {
    constexpr std::size_t pointsPerStroke = 40;
    Random random(1);
    std::vector<Stroke> drawn;
    drawn.reserve(strokes);
    for (std::size_t i = 0; i < strokes; ++i)
        drawn.push_back(
            {.points = PointList(scribble(random, pointsPerStroke, canvas)),
             .color = {random.between(0, 1), random.between(0, 1), random.between(0, 1), 1},
             .lineWidth = 3,
             .opacity = 1});
    Layer layer("Background");
    layer.strokes = StrokeList(std::move(drawn));
    return {layer};
}

}  // namespace marlevo
