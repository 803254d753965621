#include "io/PdfPath.h"

#include "graphics/Flatten.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

class PathWriter {
public:
    PathWriter(cairo_t* cairo, PathUse use) : cairo_(cairo), use_(use) {}

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
        cairo_move_to(cairo_, to.x, to.y);
    }

    void line(Point to) {
        begin(to);
        cairo_line_to(cairo_, to.x, to.y);
        current_ = to;
        hasSegments_ = true;
    }

    void close() { cairo_close_path(cairo_); }

    bool hasSegments() const { return hasSegments_; }

private:
    /// A path that does not begin with a move begins where its first segment says.
    void begin(Point otherwise) {
        if (!cairo_has_current_point(cairo_)) move(otherwise);
    }

    void curve(Point control1, Point control2, Point to) {
        cairo_curve_to(cairo_, control1.x, control1.y, control2.x, control2.y, to.x, to.y);
        current_ = to;
        hasSegments_ = true;
    }

    void quadCurve(Point control, Point to) {
        begin(control);
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
            cairo_rectangle(cairo_, rect.origin.x, rect.origin.y, rect.size.width,
                            rect.size.height);
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
        curve(at(1, kappa), at(kappa, 1), at(0, 1));
        curve(at(-kappa, 1), at(-1, kappa), at(-1, 0));
        curve(at(-1, -kappa), at(-kappa, -1), at(0, -1));
        curve(at(kappa, -1), at(1, -kappa), at(1, 0));
        close();
    }

    cairo_t* cairo_;
    PathUse use_;
    Point current_;  ///< the exact one: cairo's is rounded
    bool hasSegments_ = false;
};

void addFlattened(PathWriter& writer, const Path& path, PathUse use, double farthest) {
    // A plane on which the range of flattened paths is the one wanted.
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

bool setPdfPath(cairo_t* cairo, const Path& path, PathUse use, double farthest) {
    cairo_new_path(cairo);
    PathWriter writer(cairo, use);
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
