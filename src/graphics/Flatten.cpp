#include "graphics/Flatten.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace marlevo {

namespace {

// Enough for a curve that bends by 50,000 pixels; beyond, the tolerance gives way, not the memory.
constexpr int maxSegmentsPerCurve = 512;

bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

Point lerp(Point a, Point b, double t) { return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t}; }

/// Builds a FlattenedPath from device points of any size.
class PolylineBuilder {
public:
    PolylineBuilder(OpenContours ends, FlattenedPath& out) : ends_(ends), out_(out) {}

    void moveTo(Point p) {
        finishSubPath();
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

    static bool isInRange(Point p) { return std::abs(p.x) <= limit && std::abs(p.y) <= limit; }

    /// Joins the sub-path to its start, where the pen then is.
    void close() {
        // The joining segment of points outside the range does not join their images on the border.
        if (!isInRange(current_) || !isInRange(start_)) lineTo(start_);
        if (isDrawing_) out_.contours.back().closed = true;
        moveTo(start_);
    }

    void finishSubPath() {
        if (!isDrawing_) return;
        FlattenedPath::Contour& part = out_.contours.back();
        if (ends_ == OpenContours::close && !part.closed) {
            if (!isInRange(current_) || !isInRange(start_)) addAlongBorder(current_, start_);
            part.closed = true;
        }
        part.count = out_.points.size() - part.first;
        isDrawing_ = false;
    }

    bool hasCurrent() const { return hasCurrent_; }
    Point current() const { return current_; }

private:
    static constexpr double limit = FlattenedPath::maxCoordinate;

    static Point nearestInRange(Point p) {
        return {std::clamp(p.x, -limit, limit), std::clamp(p.y, -limit, limit)};
    }

    void begin() {
        out_.contours.push_back({out_.points.size(), 0, false});
        out_.points.push_back(nearestInRange(current_));
        isDrawing_ = true;
    }

    // The image of a segment under "nearest point in range" bends only where the segment crosses
    // one of the four lines that bound the range.
    void addAlongBorder(Point a, Point b) {
        const auto crossing = [](double from, double to, double at) {
            return (from < at) != (to < at) ? (at - from) / (to - from) : 1;
        };
        std::array<double, 4> crossings{crossing(a.x, b.x, -limit), crossing(a.x, b.x, limit),
                                        crossing(a.y, b.y, -limit), crossing(a.y, b.y, limit)};
        std::sort(crossings.begin(), crossings.end());
        for (const double t : crossings) {
            if (t < 1) out_.points.push_back(nearestInRange(lerp(a, b, t)));
        }
        out_.points.push_back(nearestInRange(b));
    }

    OpenContours ends_;
    FlattenedPath& out_;
    Point start_;
    Point current_;
    bool hasCurrent_ = false;
    bool isDrawing_ = false;
};

class Flattener {
public:
    Flattener(const DeviceFrame& frame, double tolerance, const VisibleRange& visible,
              PolylineBuilder& builder)
        : frame_(frame), tolerance_(tolerance),
          oneSegmentBendSquare_(4 * tolerance * (4 * tolerance)),
          twoSegmentsBendSquare_(16 * tolerance * (16 * tolerance)), visible_(visible),
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
    // Far enough to be out of sight from everywhere, near enough for differences to stay finite.
    static constexpr double horizon = 1e30;

    Point toDevice(Point p) const {
        return {std::clamp(p.x * frame_.scaleX + frame_.originX, -horizon, horizon),
                std::clamp(p.y * frame_.scaleY + frame_.originY, -horizon, horizon)};
    }

    bool isOutOfSight(double minX, double maxX, double minY, double maxY) const {
        return maxX < visible_.left || minX > visible_.right || maxY < visible_.top ||
               minY > visible_.bottom;
    }

    void addLine(Point to) {
        if (!builder_.hasCurrent()) builder_.moveTo(to);
        builder_.lineTo(to);
    }

    void addQuadCurve(Point control, Point to) {
        if (!builder_.hasCurrent()) builder_.moveTo(control);
        const Point from = builder_.current();
        const Point bend{from.x - 2 * control.x + to.x, from.y - 2 * control.y + to.y};
        const double bendSquare = bend.x * bend.x + bend.y * bend.y;
        // Freehand lines are made of curves so short that one or two segments do.
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
        const int count =
            isOutOfSight(std::min({from.x, control.x, to.x}), std::max({from.x, control.x, to.x}),
                         std::min({from.y, control.y, to.y}), std::max({from.y, control.y, to.y}))
                ? 1
                : segmentsPerCurve(bendSquare);
        const double step = 1.0 / count;
        for (int i = 1; i < count; ++i)
            builder_.lineTo(pointAt(i * step));
        builder_.lineTo(to);
    }

    // Equal steps of the parameter: a piece of length h strays from its chord by h² / 4 of the
    // curve's second difference, here called its bend.
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
        const Point center = lerp(a, b, 0.5);
        const Point radius{std::abs(b.x - a.x) / 2, std::abs(b.y - a.y) / 2};
        const int quarter = isOutOfSight(center.x - radius.x, center.x + radius.x,
                                         center.y - radius.y, center.y + radius.y)
                                ? 1
                                : segmentsPerQuarter(std::max(radius.x, radius.y));
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

    // A chord over the angle s strays from a circle of radius r by r · (1 − cos(s / 2)).
    int segmentsPerQuarter(double radius) const {
        if (radius <= tolerance_) return 1;
        const double step = 2 * std::acos(1 - tolerance_ / radius);
        const double count = std::ceil(std::numbers::pi / 2 / step);
        return static_cast<int>(std::min<double>(count, maxSegmentsPerCurve));
    }

    const DeviceFrame& frame_;
    double tolerance_;
    double oneSegmentBendSquare_;  ///< a curve that bends less is as good as its chord
    double twoSegmentsBendSquare_;
    const VisibleRange& visible_;
    PolylineBuilder& builder_;
};

bool canDraw(const DeviceFrame& frame) {
    return std::isfinite(frame.scaleX) && std::isfinite(frame.scaleY) && frame.scaleX != 0 &&
           frame.scaleY != 0 && std::isfinite(frame.originX) && std::isfinite(frame.originY);
}

}  // namespace

void flatten(const Path& path, const DeviceFrame& frame, double tolerance, FlattenedPath& out,
             OpenContours ends, const VisibleRange& visible) {
    out.clear();
    if (!canDraw(frame)) return;
    PolylineBuilder builder(ends, out);
    Flattener flattener(frame, tolerance, visible, builder);
    for (const Path::Element& element : path.elements())
        flattener.add(element);
    builder.finishSubPath();
}

}  // namespace marlevo
