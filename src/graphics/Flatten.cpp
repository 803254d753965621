#include "graphics/Flatten.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace marlevo {

namespace {

// Enough for a curve that bends by 120,000 pixels. Beyond that the error grows, not the memory.
constexpr int maxSegmentsPerCurve = 512;

bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

/// The first and the last piece of a curve, as a share of the others. It follows from the equal
/// distances of corners and chords.
constexpr double endPiece = (2 + std::numbers::sqrt2) / 4;

/// The greatest bend of a curve in two segments, in tolerances: see segmentsPerCurve().
constexpr double twoSegmentsBend = 32 * endPiece * endPiece;

/// Appends the elements of a path to a FlattenedPath, whose points are finite and of any size.
class Flattener {
public:
    Flattener(const DeviceFrame& frame, double tolerance, const Bounds& cull, FlattenedPath& out)
        : frame_(frame), tolerance_(tolerance),
          oneSegmentBendSquare_(4 * tolerance * (4 * tolerance)),
          twoSegmentsBendSquare_(twoSegmentsBend * tolerance * (twoSegmentsBend * tolerance)),
          cull_(cull), out_(out) {}

    void add(const Path::Element& element) {
        if (!isFinite(element.point) || !isFinite(element.control)) return;
        switch (element.kind) {
        case Path::Kind::move:
            moveTo(toDevice(element.point));
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

    void finishContour() {
        if (!isDrawing_) return;
        FlattenedPath::Contour& contour = out_.contours.back();
        contour.count = out_.points.size() - contour.first;
        isDrawing_ = false;
    }

private:
    // Beyond every picture, but differences of such coordinates stay finite.
    static constexpr double horizon = 1e30;

    Point toDevice(Point p) const {
        const Point mapped = frame_.map(p);
        return {std::clamp(mapped.x, -horizon, horizon), std::clamp(mapped.y, -horizon, horizon)};
    }

    void moveTo(Point p) {
        finishContour();
        current_ = p;
        hasCurrent_ = true;
    }

    /// Starts a contour at the current point unless one is started.
    void begin() {
        if (isDrawing_) return;
        out_.contours.push_back({out_.points.size(), 0, false});
        out_.points.push_back(current_);
        isDrawing_ = true;
    }

    void addLine(Point to) {
        if (!hasCurrent_) moveTo(to);
        begin();
        lineTo(to);
    }

    void lineTo(Point p) {
        out_.points.push_back(p);
        current_ = p;
    }

    void addQuadCurve(Point control, Point to) {
        if (!hasCurrent_) moveTo(control);
        begin();
        const Point from = current_;
        const Point bend{from.x - 2 * control.x + to.x, from.y - 2 * control.y + to.y};
        const double bendSquare = bend.x * bend.x + bend.y * bend.y;
        const Point slope{2 * (control.x - from.x), 2 * (control.y - from.y)};
        const auto addCorner = [&](double t, double step) {
            const double bends = t * t - step * step / 8;
            lineTo({from.x + t * slope.x + bends * bend.x, from.y + t * slope.y + bends * bend.y});
        };
        // The curves of freehand lines are so short that one or two segments are enough.
        if (bendSquare < twoSegmentsBendSquare_) {
            if (bendSquare >= oneSegmentBendSquare_) addCorner(0.5, 0.5 / endPiece);
        } else if (const Point corners[]{from, control, to}; Bounds::of(corners).touches(cull_)) {
            const int count = segmentsPerCurve(bendSquare);
            const double step = 1 / (count - 2 + 2 * endPiece);
            for (int i = 0; i < count - 1; ++i)
                addCorner((endPiece + i) * step, step);
        }
        lineTo(to);
    }

    // Pieces have equal steps of the parameter, except the first and the last. A chord over a step
    // h between points of the curve is inside it by up to h² / 4 of the curve's second difference,
    // here called its bend. So corners are moved outwards by h² / 8 of it: then they are outside as
    // far as chords are inside.
    int segmentsPerCurve(double bendSquare) const {
        const double steps = std::sqrt(std::sqrt(bendSquare) / (8 * tolerance_));
        return 1 + static_cast<int>(std::min(steps + 2 - 2 * endPiece, maxSegmentsPerCurve - 1.0));
    }

    void addRect(const Rect& rect) {
        const Point a = toDevice({rect.minX(), rect.minY()});
        const Point b = toDevice({rect.maxX(), rect.maxY()});
        moveTo(a);
        begin();
        for (const Point corner : {Point{b.x, a.y}, b, Point{a.x, b.y}})
            lineTo(corner);
        close();
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

        moveTo({center.x + radius.x, center.y});
        begin();
        double cos = 1;
        double sin = 0;
        for (int i = 1; i < 4 * quarter; ++i) {
            const double nextCos = cos * stepCos - sin * stepSin;
            sin = sin * stepCos + cos * stepSin;
            cos = nextCos;
            lineTo({center.x + radius.x * cos, center.y + radius.y * sin});
        }
        close();
    }

    // The distance of a chord over the angle s from its circle of radius r is r · (1 − cos(s / 2)).
    int segmentsPerQuarter(double radius) const {
        if (radius <= tolerance_) return 1;
        const double step = 2 * std::acos(1 - tolerance_ / radius);
        const double count = std::ceil(std::numbers::pi / 2 / step);
        return static_cast<int>(std::min<double>(count, maxSegmentsPerCurve));
    }

    /// Joins the contour to its first point, which becomes the current one.
    void close() {
        FlattenedPath::Contour& contour = out_.contours.back();
        contour.closed = true;
        moveTo(out_.points[contour.first]);
    }

    const DeviceFrame& frame_;
    double tolerance_;
    double oneSegmentBendSquare_;  ///< a curve that bends less becomes its chord
    double twoSegmentsBendSquare_;
    const Bounds& cull_;
    FlattenedPath& out_;
    Point current_;
    bool hasCurrent_ = false;
    bool isDrawing_ = false;
};

}  // namespace

void flatten(const Path& path, const DeviceFrame& frame, double tolerance, FlattenedPath& out,
             OpenContours openContours, const Bounds& cull) {
    out.clear();
    if (!frame.isUsable()) return;
    Flattener flattener(frame, tolerance, cull, out);
    for (const Path::Element& element : path.elements())
        flattener.add(element);
    flattener.finishContour();
    if (openContours == OpenContours::close)
        for (FlattenedPath::Contour& contour : out.contours)
            contour.closed = true;
    if (!Bounds::of(out.points).isWithin(flattenedRange))
        out = out.clippedTo(FlattenedPath::maxCoordinate);
}

}  // namespace marlevo
