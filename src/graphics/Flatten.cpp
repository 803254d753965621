#include "graphics/Flatten.h"

#include "graphics/ClipToBorder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace marlevo {

namespace {

// Enough for a curve that bends by 50,000 pixels. Beyond that the error grows, not the memory.
constexpr int maxSegmentsPerCurve = 512;

bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

/// Builds a FlattenedPath from device points of any size.
class ContourBuilder {
public:
    ContourBuilder(OpenContours openContours, FlattenedPath& out)
        : openContours_(openContours), out_(out) {}

    void moveTo(Point p) {
        finishContour();
        start_ = current_ = p;
        hasCurrent_ = true;
    }

    void lineTo(Point p) {
        if (!isDrawing_) begin();
        if (isInRange(current_) && isInRange(p)) {
            out_.points.push_back(p);
        } else {
            addAlongBorder(current_, p);
        }
        current_ = p;
    }

    /// Joins the contour to its start and moves the pen there.
    void close() {
        // Of points outside the range the joining segment needs the corners on the border, too.
        if (!isInRange(current_) || !isInRange(start_)) lineTo(start_);
        if (isDrawing_) out_.contours.back().closed = true;
        moveTo(start_);
    }

    void finishContour() {
        if (!isDrawing_) return;
        FlattenedPath::Contour& contour = out_.contours.back();
        if (openContours_ == OpenContours::close && !contour.closed) {
            if (!isInRange(current_) || !isInRange(start_)) addAlongBorder(current_, start_);
            contour.closed = true;
        }
        contour.count = out_.points.size() - contour.first;
        isDrawing_ = false;
    }

    bool hasCurrent() const { return hasCurrent_; }
    Point current() const { return current_; }

private:
    static constexpr double limit = FlattenedPath::maxCoordinate;

    static bool isInRange(Point p) { return std::abs(p.x) <= limit && std::abs(p.y) <= limit; }

    void begin() {
        out_.contours.push_back({out_.points.size(), 0, false});
        out_.points.push_back(nearestInSquare(current_, limit));
        isDrawing_ = true;
    }

    void addAlongBorder(Point from, Point to) {
        clipToBorder(from, to, limit, [this](Point p) { out_.points.push_back(p); });
    }

    OpenContours openContours_;
    FlattenedPath& out_;
    Point start_;
    Point current_;
    bool hasCurrent_ = false;
    bool isDrawing_ = false;
};

class Flattener {
public:
    Flattener(const DeviceFrame& frame, double tolerance, const Bounds& cull,
              ContourBuilder& builder)
        : frame_(frame), tolerance_(tolerance),
          oneSegmentBendSquare_(4 * tolerance * (4 * tolerance)),
          twoSegmentsBendSquare_(16 * tolerance * (16 * tolerance)), cull_(cull),
          builder_(builder) {}

    void add(const Path::Element& element) {
        if (!isFinite(element.point) || !isFinite(element.control)) return;
        switch (element.kind) {
        case Path::Kind::move:
            builder_.moveTo(toDevice(element.point));
            break;
        case Path::Kind::line:
            addLine(toDevice(element.point));
            break;
        case Path::Kind::quadCurve:
            addQuadCurve(toDevice(element.control), toDevice(element.point));
            break;
        case Path::Kind::rect:
            addRect(element.rect());
            break;
        case Path::Kind::ellipse:
            addEllipse(element.rect());
            break;
        }
    }

private:
    // Beyond every picture, but differences of such coordinates stay finite.
    static constexpr double horizon = 1e30;

    Point toDevice(Point p) const { return nearestInSquare(frame_.map(p), horizon); }

    void addLine(Point to) {
        if (!builder_.hasCurrent()) builder_.moveTo(to);
        builder_.lineTo(to);
    }

    void addQuadCurve(Point control, Point to) {
        if (!builder_.hasCurrent()) builder_.moveTo(control);
        const Point from = builder_.current();
        const Point bend{from.x - 2 * control.x + to.x, from.y - 2 * control.y + to.y};
        const double bendSquare = bend.x * bend.x + bend.y * bend.y;
        // The curves of freehand lines are so short that one or two segments are enough.
        if (bendSquare < oneSegmentBendSquare_) {
            builder_.lineTo(to);
            return;
        }
        const Point slope{2 * (control.x - from.x), 2 * (control.y - from.y)};
        const auto pointAt = [&](double t) {
            return Point{from.x + t * (slope.x + t * bend.x), from.y + t * (slope.y + t * bend.y)};
        };
        if (bendSquare < twoSegmentsBendSquare_) {
            builder_.lineTo(pointAt(0.5));
            builder_.lineTo(to);
            return;
        }
        const Point corners[]{from, control, to};
        const int count = Bounds::of(corners).touches(cull_) ? segmentsPerCurve(bendSquare) : 1;
        const double step = 1.0 / count;
        for (int i = 1; i < count; ++i)
            builder_.lineTo(pointAt(i * step));
        builder_.lineTo(to);
    }

    // Equal steps of the parameter: the distance of a piece of length h from its chord is at most
    // h² / 4 of the curve's second difference, here called its bend.
    int segmentsPerCurve(double bendSquare) const {
        const double count = std::sqrt(std::sqrt(bendSquare) / (4 * tolerance_));
        return 1 + static_cast<int>(std::min(count, maxSegmentsPerCurve - 1.0));
    }

    void addRect(const Rect& rect) {
        const Point a = toDevice({rect.minX(), rect.minY()});
        const Point b = toDevice({rect.maxX(), rect.maxY()});
        builder_.moveTo(a);
        builder_.lineTo({b.x, a.y});
        builder_.lineTo(b);
        builder_.lineTo({a.x, b.y});
        builder_.close();
    }

    void addEllipse(const Rect& rect) {
        const Point a = toDevice({rect.minX(), rect.minY()});
        const Point b = toDevice({rect.maxX(), rect.maxY()});
        const Point center{a.x + (b.x - a.x) * 0.5, a.y + (b.y - a.y) * 0.5};
        const Point radius{std::abs(b.x - a.x) / 2, std::abs(b.y - a.y) / 2};
        const Bounds box{center.x - radius.x, center.y - radius.y, center.x + radius.x,
                         center.y + radius.y};
        const int quarter =
            box.touches(cull_) ? segmentsPerQuarter(std::max(radius.x, radius.y)) : 1;
        const double step = std::numbers::pi / 2 / quarter;
        const double stepCos = std::cos(step);
        const double stepSin = std::sin(step);

        builder_.moveTo({center.x + radius.x, center.y});
        double cos = 1;
        double sin = 0;
        for (int i = 1; i < 4 * quarter; ++i) {
            const double nextCos = cos * stepCos - sin * stepSin;
            sin = sin * stepCos + cos * stepSin;
            cos = nextCos;
            builder_.lineTo({center.x + radius.x * cos, center.y + radius.y * sin});
        }
        builder_.close();
    }

    // The distance of a chord over the angle s from its circle of radius r is r · (1 − cos(s / 2)).
    int segmentsPerQuarter(double radius) const {
        if (radius <= tolerance_) return 1;
        const double step = 2 * std::acos(1 - tolerance_ / radius);
        const double count = std::ceil(std::numbers::pi / 2 / step);
        return static_cast<int>(std::min<double>(count, maxSegmentsPerCurve));
    }

    const DeviceFrame& frame_;
    double tolerance_;
    double oneSegmentBendSquare_;  ///< a curve that bends less becomes its chord
    double twoSegmentsBendSquare_;
    const Bounds& cull_;
    ContourBuilder& builder_;
};

}  // namespace

void flatten(const Path& path, const DeviceFrame& frame, double tolerance, FlattenedPath& out,
             OpenContours openContours, const Bounds& cull) {
    out.clear();
    if (!frame.isUsable()) return;
    ContourBuilder builder(openContours, out);
    Flattener flattener(frame, tolerance, cull, builder);
    for (const Path::Element& element : path.elements())
        flattener.add(element);
    builder.finishContour();
}

}  // namespace marlevo
