#include "render/StrokeCells.h"

#include "render/DeviceBounds.h"

#include <algorithm>

namespace marlevo {

namespace {

Point middle(Point a, Point b) { return {(a.x + b.x) * 0.5, (a.y + b.y) * 0.5}; }

/// Adds the cells of the pieces of one stroke's path.
class Outline {
public:
    Outline(double lineWidth, double scale, CellSet& cells)
        : lineWidth_(lineWidth), scale_(scale), cells_(cells) {}

    void addLine(Point from, Point to) { addCurve(from, middle(from, to), to); }

    /// The box of the three points has all of the curve. A large one is cut, because a diagonal
    /// curve touches few cells of its box.
    void addCurve(Point from, Point control, Point to) {
        const auto [left, right] = std::minmax({from.x, control.x, to.x});
        const auto [top, bottom] = std::minmax({from.y, control.y, to.y});
        const Rect box{{left, top}, {right - left, bottom - top}};
        const IntRect area = deviceBounds(box, lineWidth_, scale_);
        if (area.intersectedWith(cells_.allowedArea()).isEmpty()) return;
        constexpr double small = cellSide / 2.0;
        if (std::min(box.size.width, box.size.height) * scale_ <= small) return cells_.add(area);
        const Point a = middle(from, control);
        const Point b = middle(control, to);
        const Point cut = middle(a, b);
        addCurve(from, a, cut);
        addCurve(cut, b, to);
    }

    void addFrame(const Rect& rect) {
        const Point a{rect.minX(), rect.minY()};
        const Point b{rect.maxX(), rect.minY()};
        const Point c{rect.maxX(), rect.maxY()};
        const Point d{rect.minX(), rect.maxY()};
        addLine(a, b);
        addLine(b, c);
        addLine(c, d);
        addLine(d, a);
    }

private:
    double lineWidth_;
    double scale_;
    CellSet& cells_;
};

/// Farther from 0, the middle of two points may be rounded by a pixel.
bool isPrecise(const IntRect& area) {
    constexpr int farthest = 1 << 24;
    return area.left > -farthest && area.top > -farthest && area.right < farthest &&
           area.bottom < farthest;
}

}  // namespace

void addCellsOf(const Stroke& stroke, double scale, CellSet& cells) {
    if (stroke.points.size() < 2) return;
    const IntRect area = deviceBounds(stroke, scale);
    if (cells.covers(area)) return;
    if (stroke.isFill || stroke.shapeType == Stroke::ShapeType::ellipse ||
        std::min(area.width(), area.height()) <= cellSide || !isPrecise(area)) {
        return cells.add(area);
    }
    Outline outline(stroke.lineWidth, scale, cells);
    Point at;
    const Path path = stroke.path();
    for (const Path::Element& element : path.elements()) {
        switch (element.kind) {
        case Path::Kind::move:
            break;
        case Path::Kind::line:
            outline.addLine(at, element.point);
            break;
        case Path::Kind::quadCurve:
            outline.addCurve(at, element.control, element.point);
            break;
        case Path::Kind::rect:
        case Path::Kind::ellipse:
            outline.addFrame(element.rect());
            break;
        }
        at = element.point;
    }
}

}  // namespace marlevo
