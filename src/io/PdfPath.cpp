#include "io/PdfPath.h"

#include "graphics/Flatten.h"
#include "io/PdfFile.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

class PathWriter {
public:
    PathWriter(std::string& text, PathUse use) : text_(text), use_(use) {}

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
        begin(to);
        command("l\n", {to});
        current_ = to;
    }

    void close() { text_ += "h\n"; }

private:
    // A move is written with the first segment, so that one without any leaves nothing.
    void begin(Point otherwise) {
        if (!hasCurrent_) move(otherwise);
        if (isMovePending_) command("m\n", {current_});
        isMovePending_ = false;
    }

    void quadCurve(Point control, Point to) {
        begin(control);
        const auto towardsControl = [&](Point p) {
            return Point{p.x + (control.x - p.x) * 2 / 3, p.y + (control.y - p.y) * 2 / 3};
        };
        command("c\n", {towardsControl(current_), towardsControl(to), to});
        current_ = to;
    }

    void addShape(Path::Kind kind, const Rect& rect) {
        move(rect.origin);
        if (rect.size.width == 0 || rect.size.height == 0) {
            if (use_ == PathUse::stroke) line({rect.maxX(), rect.maxY()});
        } else if (kind == Path::Kind::rect) {
            command("re\n", {rect.origin, {rect.size.width, rect.size.height}});
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
        command("m\n", {at(1, 0)});
        command("c\n", {at(1, kappa), at(kappa, 1), at(0, 1)});
        command("c\n", {at(-kappa, 1), at(-1, kappa), at(-1, 0)});
        command("c\n", {at(-1, -kappa), at(-kappa, -1), at(0, -1)});
        command("c\n", {at(kappa, -1), at(1, -kappa), at(1, 0)});
        close();
    }

    void command(const char* name, std::initializer_list<Point> operands) {
        for (const Point& p : operands) {
            appendPdfNumber(text_, p.x);
            appendPdfNumber(text_, p.y);
        }
        text_ += name;
    }

    std::string& text_;
    PathUse use_;
    Point current_;
    bool hasCurrent_ = false;
    bool isMovePending_ = false;
};

void addFlattened(PathWriter& writer, const Path& path, PathUse use, double farthest) {
    // A plane on which the range of flattened paths is the one wanted.
    const double scale = FlattenedPath::maxCoordinate / farthest;
    FlattenedPath flattened;
    flatten(path, {scale, scale, 0, 0}, flatteningTolerance * scale, flattened,
            use == PathUse::fill ? SubPathEnds::joined : SubPathEnds::asGiven);
    for (const FlattenedPath::SubPath& part : flattened.subPaths) {
        const auto points = flattened.pointsOf(part);
        const auto place = [scale](Point p) { return Point{p.x / scale, p.y / scale}; };
        writer.move(place(points.front()));
        if (points.size() == 1) writer.line(place(points.front()));
        for (std::size_t i = 1; i < points.size(); ++i) {
            if (points[i] != points[i - 1]) writer.line(place(points[i]));
        }
        if (part.closed) writer.close();
    }
}

}  // namespace

bool appendPdfPath(std::string& text, const Path& path, PathUse use, double farthest) {
    const std::size_t before = text.size();
    PathWriter writer(text, use);
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
    return text.size() > before;
}

}  // namespace marlevo
