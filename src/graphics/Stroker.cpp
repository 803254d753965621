#include "graphics/Stroker.h"

#include "graphics/Flatten.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace marlevo {

namespace {

/// Consecutive points nearer together than this fraction of the tolerance are merged.
constexpr double mergeFraction = 0.125;

/// The least tolerance of an arc as a fraction of its radius. Bounds the number of its corners.
constexpr double minArcFraction = 1e-6;

/// Used for half a turn of 180°, where the tangent is infinite.
constexpr double maxTangent = 1e12;

struct Segment {
    Point from;
    Point to;
    Point direction;  ///< of length 1
    double length = 0;
    /// The tangent of half the turn from the segment before; positive to the left, the side of
    /// normal().
    double turn = 0;

    Point normal() const { return {-direction.y, direction.x}; }
};

double toleranceOf(double radius) { return std::max(flatteningTolerance, minArcFraction * radius); }

double dot(Point a, Point b) { return a.x * b.x + a.y * b.y; }
double cross(Point a, Point b) { return a.x * b.y - a.y * b.x; }

class Stroker {
public:
    Stroker(double radius, FlattenedPath& out)
        : radius_(radius), tolerance_(toleranceOf(radius)), out_(out) {
        // A corner on the bisector is radius · tangent² / 2 further out than the arc.
        slightTurn_ = std::sqrt(2 * tolerance_ / radius);
        // The middle of a chord is radius · (1 − cosine of half the angle) inside the arc.
        const double halfCosine = std::max(1 - tolerance_ / radius, std::sqrt(0.5));
        arcCosine_ = 2 * halfCosine * halfCosine - 1;
        arcSine_ = std::sqrt(1 - arcCosine_ * arcCosine_);
    }

    void add(std::span<const Point> points, bool closed) {
        collect(points, closed);
        if (segments_.empty()) {
            addDisc(points.front());
        } else if (closed) {
            addSide(Ends::joined);
            endPolygon();
            turnAround();
            addSide(Ends::joined);
            endPolygon();
        } else {
            addSide(Ends::capped);
            addCap();
            turnAround();
            addSide(Ends::capped);
            addCap();
            endPolygon();
        }
    }

private:
    enum class Ends { capped, joined };

    /// One end of a cell. At a height above the segment its distance inwards from the segment's end
    /// is slope · height, but at most `limit`.
    struct CellEnd {
        double slope = 0;
        double limit = 0;
        bool isStraight = true;

        bool hasKnee(double height) const { return slope > 0 && slope * height > limit; }
        double kneeHeight() const { return limit / slope; }
        double at(double height) const { return hasKnee(height) ? limit : slope * height; }
    };

    void collect(std::span<const Point> points, bool closed);
    void turnAround();
    void addSide(Ends ends);
    void addCap();
    void addDisc(Point center);
    void addArc(Point center, Point fromNormal, Point toNormal);

    void addOffset(Point center, Point normal) {
        out_.points.push_back({center.x + normal.x * radius_, center.y + normal.y * radius_});
    }
    void endPolygon() {
        const std::size_t first =
            out_.contours.empty() ? 0 : out_.contours.back().first + out_.contours.back().count;
        out_.contours.push_back({first, out_.points.size() - first, true});
    }

    CellEnd cellEnd(double turn, const Segment& neighbour) const;
    double crossingHeight(const CellEnd& start, const CellEnd& end, double length) const;

    double radius_;
    double tolerance_;
    double slightTurn_;
    double arcCosine_;  ///< of the angle between the corners of an arc
    double arcSine_;
    FlattenedPath& out_;
    std::vector<Segment> segments_;
};

void Stroker::collect(std::span<const Point> points, bool closed) {
    segments_.clear();
    const double shortest = mergeFraction * tolerance_;
    const auto addSegment = [&](Point from, Point to) {
        const double dx = to.x - from.x;
        const double dy = to.y - from.y;
        const double square = dx * dx + dy * dy;
        if (square <= shortest * shortest) return false;
        const double length = std::sqrt(square);
        segments_.push_back({from, to, {dx / length, dy / length}, length, 0});
        return true;
    };
    Point last = points.front();
    for (const Point p : points.subspan(1))
        if (addSegment(last, p)) last = p;
    if (closed && !segments_.empty() && !addSegment(last, points.front())) {
        // The last point nearly coincides with the first. Extend the last segment to the first
        // point instead of adding a tiny one.
        Segment& end = segments_.back();
        const Point from = end.from;
        segments_.pop_back();
        if (!addSegment(from, points.front())) segments_.clear();
    }
    if (segments_.empty()) return;

    const Segment* before = &segments_.back();
    for (Segment& segment : segments_) {
        const double sine = cross(before->direction, segment.direction);
        const double cosine = dot(before->direction, segment.direction);
        // The tangent of half an angle has two equal formulas. Each case uses the one without
        // cancellation.
        if (cosine >= 0)
            segment.turn = sine / (1 + cosine);
        else if (std::abs(sine) * maxTangent > 1 - cosine)
            segment.turn = (1 - cosine) / sine;
        else
            segment.turn = maxTangent;
        before = &segment;
    }
}

/// Reverses the line, so that its right side becomes the left one.
void Stroker::turnAround() {
    std::reverse(segments_.begin(), segments_.end());
    const double lastTurn = segments_.back().turn;
    for (std::size_t i = segments_.size(); i-- > 0;) {
        Segment& segment = segments_[i];
        std::swap(segment.from, segment.to);
        segment.direction = {-segment.direction.x, -segment.direction.y};
        segment.turn = i > 0 ? -segments_[i - 1].turn : -lastTurn;
    }
}

/// The end of a cell at a turn to `neighbour`.
Stroker::CellEnd Stroker::cellEnd(double turn, const Segment& neighbour) const {
    if (turn < -slightTurn_) return {};
    // The part that the bisector cuts off is nearer to the neighbour than to this segment, up to
    // the neighbour's length from the joint. At a distance e beyond that it is at most e² / (2 ·
    // radius) nearer to this segment, an error within the tolerance.
    return {turn, neighbour.length + slightTurn_ * radius_, false};
}

/// The height at which the two ends of a cell meet, if that is below the radius.
double Stroker::crossingHeight(const CellEnd& start, const CellEnd& end, double length) const {
    double height = length / (start.slope + end.slope);
    if (start.slope > 0) height = std::max(height, (length - end.limit) / start.slope);
    if (end.slope > 0) height = std::max(height, (length - start.limit) / end.slope);
    return height;
}

/// Appends the left border of the cells to the outline.
void Stroker::addSide(Ends ends) {
    const std::size_t count = segments_.size();
    bool cornerIsOut = false;  // the last point is already the top of the next cell's start
    for (std::size_t i = 0; i < count; ++i) {
        const Segment& previous = segments_[i > 0 ? i - 1 : count - 1];
        const Segment& segment = segments_[i];
        const Segment& next = segments_[i + 1 < count ? i + 1 : 0];
        const bool capBefore = ends == Ends::capped && i == 0;
        const bool capBehind = ends == Ends::capped && i + 1 == count;
        const CellEnd start = capBefore ? CellEnd{} : cellEnd(segment.turn, previous);
        const CellEnd end = capBehind ? CellEnd{} : cellEnd(next.turn, next);
        const double length = segment.length;
        const Point normal = segment.normal();
        const auto put = [&](double along, double height) {
            out_.points.push_back(
                {segment.from.x + segment.direction.x * along + normal.x * height,
                 segment.from.y + segment.direction.y * along + normal.y * height});
        };

        if (start.at(radius_) + end.at(radius_) <= length) {
            if (start.hasKnee(radius_)) put(start.limit, start.kneeHeight());
            if (start.isStraight || start.hasKnee(radius_) || !cornerIsOut)
                put(start.at(radius_), radius_);
            put(length - end.at(radius_), radius_);
            if (end.hasKnee(radius_)) put(length - end.limit, end.kneeHeight());
            cornerIsOut = !end.hasKnee(radius_);
        } else {
            const double height = crossingHeight(start, end, length);
            if (start.isStraight) put(0, radius_);
            if (start.hasKnee(height)) put(start.limit, start.kneeHeight());
            put(start.at(height), height);
            if (end.hasKnee(height)) put(length - end.limit, end.kneeHeight());
            if (end.isStraight) put(length, radius_);
            cornerIsOut = false;
        }
        if (end.isStraight && !capBehind) addArc(segment.to, normal, next.normal());
    }
}

/// Appends the cap at the end of the last segment.
void Stroker::addCap() {
    const Point normal = segments_.back().normal();
    addArc(segments_.back().to, normal, {-normal.x, -normal.y});
}

void Stroker::addDisc(Point center) {
    for (const Point normal : {Point{1, 0}, Point{-1, 0}}) {
        addOffset(center, normal);
        addArc(center, normal, {-normal.x, -normal.y});
    }
    endPolygon();
}

/// Appends the corners of an arc of at most 180°, clockwise about `center`, without its ends.
void Stroker::addArc(Point center, Point fromNormal, Point toNormal) {
    // The remaining angle is at most 180°, so its cosine determines it.
    for (Point n = fromNormal; dot(n, toNormal) < arcCosine_;) {
        n = {n.x * arcCosine_ + n.y * arcSine_, n.y * arcCosine_ - n.x * arcSine_};
        addOffset(center, n);
    }
}

void addSubPaths(const FlattenedPath& line, Stroker& stroker) {
    for (const auto& part : line.contours) {
        const auto points = line.pointsOf(part);
        if (!points.empty()) stroker.add(points, part.closed);
    }
}

}  // namespace

void strokeOutline(const FlattenedPath& centerLine, double lineWidth, double scaleX, double scaleY,
                   FlattenedPath& out) {
    out.clear();
    const double unitX = std::abs(scaleX);
    const double unitY = std::abs(scaleY);
    const double widthX = lineWidth * unitX;
    const double widthY = lineWidth * unitY;
    if (!(widthX > 0) || !(widthY > 0) || !std::isfinite(widthX) || !std::isfinite(widthY)) return;

    // The plane is stretched until the narrower side of the pen is as wide as the other: there the
    // pen is a circle.
    const double width = std::max(widthX, widthY);
    Stroker stroker(width / 2, out);
    if (widthX == widthY) {
        addSubPaths(centerLine, stroker);
        return;
    }
    const double stretchX = width / widthX;
    const double stretchY = width / widthY;
    FlattenedPath stretched = centerLine;
    for (Point& p : stretched.points)
        p = {p.x * stretchX, p.y * stretchY};
    addSubPaths(stretched, stroker);
    for (Point& p : out.points)
        p = {p.x / stretchX, p.y / stretchY};
}

double mergeDistance(double deviceWidth) { return mergeFraction * toleranceOf(deviceWidth / 2); }

}  // namespace marlevo
