#include "graphics/Stroker.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace marlevo {

namespace {

/// Points of the line nearer together than this part of the tolerance are one.
constexpr double joinedDistance = 0.125;

/// No arc is finer than this part of its radius, or a vast pen would need endless corners.
constexpr double finestArc = 1e-6;

/// Stands for the infinite tangent of half a turn of 180°.
constexpr double endlessTangent = 1e12;

struct Segment {
    Point from;
    Point to;
    Point direction;  ///< of length 1
    double length = 0;
    /// The tangent of half the turn from the segment before; positive to the left, the side on
    /// which normal() lies.
    double turn = 0;

    Point normal() const { return {-direction.y, direction.x}; }
};

double dot(Point a, Point b) { return a.x * b.x + a.y * b.y; }
double cross(Point a, Point b) { return a.x * b.y - a.y * b.x; }

class Stroker {
public:
    Stroker(double radius, double tolerance, FlattenedPath& out)
        : radius_(radius), tolerance_(std::max(tolerance, finestArc * radius)), out_(out) {
        // The corner that bisectors leave on a joint stands out by radius · tangent² / 2.
        slightTurn_ = std::sqrt(2 * tolerance_ / radius);
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
    /// How the cells on the left of two segments meet: on the bisector of their angle, or each
    /// ending at its normal, with a sector between them or overlapping.
    enum class Joint { bisected, sector, overlapping };

    void collect(std::span<const Point> points, bool closed);
    void turnAround();
    void addSide(Ends ends);
    void addCap();
    void addDisc(Point center);
    void addArc(Point center, Point fromNormal, Point toNormal);

    void addPoint(Point base, Point direction, double along, Point normal, double height) {
        out_.points.push_back({base.x + direction.x * along + normal.x * height,
                               base.y + direction.y * along + normal.y * height});
    }
    void addOffset(Point center, Point normal) {
        out_.points.push_back({center.x + normal.x * radius_, center.y + normal.y * radius_});
    }
    void endPolygon() {
        const std::size_t first =
            out_.subPaths.empty() ? 0 : out_.subPaths.back().first + out_.subPaths.back().count;
        out_.subPaths.push_back({first, out_.points.size() - first, true});
    }

    Joint jointOf(const Segment& before, const Segment& behind) const;

    double radius_;
    double tolerance_;
    double slightTurn_;
    FlattenedPath& out_;
    std::vector<Segment> segments_;
};

void Stroker::collect(std::span<const Point> points, bool closed) {
    segments_.clear();
    const double shortest = joinedDistance * tolerance_;
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
        // The end lies on the start but for a hair: let the last segment take it.
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
        // Of the two equal ways to write the tangent of half an angle, the one without
        // cancellation.
        if (cosine >= 0)
            segment.turn = sine / (1 + cosine);
        else if (std::abs(sine) * endlessTangent > 1 - cosine)
            segment.turn = (1 - cosine) / sine;
        else
            segment.turn = endlessTangent;
        before = &segment;
    }
}

/// The same line walked from its end, so that its right side becomes the left one.
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

Stroker::Joint Stroker::jointOf(const Segment& before, const Segment& behind) const {
    const double turn = behind.turn;
    if (turn < -slightTurn_) return Joint::sector;
    // What the bisector takes from one cell belongs to the other if that is long enough, or else
    // sticks out of what the rest of the line covers by (radius · turn − length)² / (2 · radius).
    const double length = std::min(before.length, behind.length);
    return radius_ * (turn - slightTurn_) <= length ? Joint::bisected : Joint::overlapping;
}

/// Puts out the left border of the cells.
void Stroker::addSide(Ends ends) {
    const std::size_t count = segments_.size();
    bool cornerIsOut = false;  // the border already stands at the start of the next cell
    for (std::size_t i = 0; i < count; ++i) {
        const Segment& previous = segments_[i > 0 ? i - 1 : count - 1];
        const Segment& segment = segments_[i];
        const Segment& next = segments_[i + 1 < count ? i + 1 : 0];
        const bool capBefore = ends == Ends::capped && i == 0;
        const bool capBehind = ends == Ends::capped && i + 1 == count;
        const Joint jointBehind = jointOf(segment, next);
        const bool straightBefore = capBefore || jointOf(previous, segment) != Joint::bisected;
        const bool straightBehind = capBehind || jointBehind != Joint::bisected;
        const double cutBefore = straightBefore ? 0 : segment.turn;
        const double cutBehind = straightBehind ? 0 : next.turn;
        const Point normal = segment.normal();

        if ((cutBefore + cutBehind) * radius_ <= segment.length) {
            if (straightBefore || !cornerIsOut)
                addPoint(segment.from, segment.direction, cutBefore * radius_, normal, radius_);
            addPoint(segment.to, segment.direction, -cutBehind * radius_, normal, radius_);
            cornerIsOut = true;
        } else {
            if (straightBefore) addOffset(segment.from, normal);
            const double height = segment.length / (cutBefore + cutBehind);
            addPoint(segment.from, segment.direction, cutBefore * height, normal, height);
            if (straightBehind) addOffset(segment.to, normal);
            cornerIsOut = straightBehind;
        }
        if (capBehind) continue;
        if (jointBehind == Joint::overlapping) {
            out_.points.push_back(segment.to);
        } else if (jointBehind == Joint::sector) {
            // Halving the turn by the directions is exact where the normals nearly cancel.
            if (next.turn < -1) {
                const Point away{segment.direction.x - next.direction.x,
                                 segment.direction.y - next.direction.y};
                const double length = std::sqrt(dot(away, away));
                const Point middle{away.x / length, away.y / length};
                addArc(segment.to, normal, middle);
                addOffset(segment.to, middle);
                addArc(segment.to, middle, next.normal());
            } else {
                addArc(segment.to, normal, next.normal());
            }
        }
    }
}

/// Goes round the end of the last segment.
void Stroker::addCap() {
    const Segment& last = segments_.back();
    const Point normal = last.normal();
    addArc(last.to, normal, last.direction);
    addOffset(last.to, last.direction);
    addArc(last.to, last.direction, {-normal.x, -normal.y});
}

void Stroker::addDisc(Point center) {
    constexpr Point corners[] = {{1, 0}, {0, -1}, {-1, 0}, {0, 1}};
    for (int i = 0; i < 4; ++i) {
        addOffset(center, corners[i]);
        addArc(center, corners[i], corners[(i + 1) % 4]);
    }
    endPolygon();
}

/// Puts out the corners of an arc of less than 180°, without its ends.
void Stroker::addArc(Point center, Point fromNormal, Point toNormal) {
    const double halfCosine = std::sqrt(std::max(0.0, (1 + dot(fromNormal, toNormal)) / 2));
    if (radius_ * (1 - halfCosine) <= tolerance_) return;
    const Point middle{(fromNormal.x + toNormal.x) / (2 * halfCosine),
                       (fromNormal.y + toNormal.y) / (2 * halfCosine)};
    addArc(center, fromNormal, middle);
    addOffset(center, middle);
    addArc(center, middle, toNormal);
}

}  // namespace

void strokeOutline(const FlattenedPath& centerLine, double lineWidth, double tolerance,
                   FlattenedPath& out) {
    out.clear();
    if (!(lineWidth > 0) || !std::isfinite(lineWidth)) return;
    Stroker stroker(lineWidth / 2, tolerance, out);
    for (const auto& part : centerLine.subPaths) {
        const auto points = centerLine.pointsOf(part);
        if (!points.empty()) stroker.add(points, part.closed);
    }
}

}  // namespace marlevo
