#include "io/PdfPath.h"

#include "graphics/Flatten.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

class PathWriter {
public:
    PathWriter(PdfContent& content, PathUse use) : content_(content), use_(use) {}

    void add(const Path::Element& element) {
        switch (element.kind) {
        case Path::Kind::move:
            move(element.point);
            break;
        case Path::Kind::line:
            line(element.point);
            break;
        case Path::Kind::quadCurve:
            quadCurve(element.control, element.point);
            break;
        case Path::Kind::rect:
        case Path::Kind::ellipse:
            addShape(element.kind, element.rect());
            break;
        }
    }

    void move(Point to) {
        current_ = to;
        hasCurrent_ = true;
        isMovePending_ = true;
    }

    void line(Point to) {
        beginSegment(to);
        content_.add({to.x, to.y}, "l");
        current_ = to;
    }

    void close() { content_.add("h"); }

    bool hasSegments() const { return hasSegments_; }

private:
    /// Writes the move before the first segment of a sub-path: a move alone paints nothing. A path
    /// that does not begin with a move begins at its first segment's first point.
    void beginSegment(Point firstPoint) {
        if (!hasCurrent_) move(firstPoint);
        if (isMovePending_) content_.add({current_.x, current_.y}, "m");
        isMovePending_ = false;
        hasSegments_ = true;
    }

    void curve(Point control1, Point control2, Point to) {
        content_.add({control1.x, control1.y, control2.x, control2.y, to.x, to.y}, "c");
        current_ = to;
    }

    void quadCurve(Point control, Point to) {
        beginSegment(control);
        // The first piece of a freehand curve is straight.
        if (control == current_) return line(to);
        const auto towardsControl = [&](Point p) {
            return Point{p.x + (control.x - p.x) * 2 / 3, p.y + (control.y - p.y) * 2 / 3};
        };
        curve(towardsControl(current_), towardsControl(to), to);
    }

    void addShape(Path::Kind kind, const Rect& rect) {
        if (rect.size.width == 0 || rect.size.height == 0) {
            move(rect.origin);
            if (use_ == PathUse::stroke) line({rect.maxX(), rect.maxY()});
        } else if (kind == Path::Kind::rect) {
            content_.add({rect.origin.x, rect.origin.y, rect.size.width, rect.size.height}, "re");
            hasSegments_ = true;
        } else {
            ellipse(rect);
        }
        move(rect.origin);
    }

    void ellipse(const Rect& rect) {
        // The cubic that best follows a quarter of a circle; it strays by 0.03 % of the radius.
        constexpr double kappa = 0.5522847498307936;
        const Point radius{rect.size.width / 2, rect.size.height / 2};
        const Point center{rect.minX() + radius.x, rect.minY() + radius.y};
        const auto at = [&](double x, double y) {
            return Point{center.x + x * radius.x, center.y + y * radius.y};
        };
        move(at(1, 0));
        beginSegment(at(1, 0));
        curve(at(1, kappa), at(kappa, 1), at(0, 1));
        curve(at(-kappa, 1), at(-1, kappa), at(-1, 0));
        curve(at(-1, -kappa), at(-kappa, -1), at(0, -1));
        curve(at(kappa, -1), at(1, -kappa), at(1, 0));
        close();
    }

    PdfContent& content_;
    PathUse use_;
    Point current_;  ///< exact; the operators are rounded
    bool hasCurrent_ = false;
    bool isMovePending_ = false;  ///< `current_` is the start of a sub-path not yet written
    bool hasSegments_ = false;
};

void addFlattened(PathWriter& writer, const Path& path, PathUse use, double farthest) {
    // At this scale the range of flattened paths ends at `farthest`.
    const double scale = FlattenedPath::maxCoordinate / farthest;
    FlattenedPath flattened;
    flatten(path, {scale, scale, 0, 0}, flatteningTolerance * scale, flattened,
            use == PathUse::fill ? OpenContours::close : OpenContours::keep);
    for (const FlattenedPath::Contour& part : flattened.contours) {
        const auto points = flattened.pointsOf(part);
        const auto place = [scale](Point p) { return Point{p.x / scale, p.y / scale}; };
        writer.move(place(points.front()));
        bool isDot = true;
        for (std::size_t i = 1; i < points.size(); ++i) {
            if (points[i] == points[i - 1]) continue;
            writer.line(place(points[i]));
            isDot = false;
        }
        if (isDot && use == PathUse::stroke) writer.line(place(points.front()));
        if (part.closed) writer.close();
    }
}

}  // namespace

bool addPdfPath(PdfContent& content, const Path& path, PathUse use, double farthest) {
    PathWriter writer(content, use);
    const auto& elements = path.elements();
    const auto isInRange = [farthest](Point p) {
        return std::abs(p.x) <= farthest && std::abs(p.y) <= farthest;
    };
    const bool isWritable =
        std::all_of(elements.begin(), elements.end(), [&](const Path::Element& element) {
            return isInRange(element.point) && isInRange(element.control);
        });
    if (isWritable) {
        for (const Path::Element& element : elements)
            writer.add(element);
    } else {
        addFlattened(writer, path, use, farthest);
    }
    return writer.hasSegments();
}

}  // namespace marlevo
