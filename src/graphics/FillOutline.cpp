#include "graphics/FillOutline.h"

#include "graphics/CoverageBand.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace marlevo {

namespace {

/// Where edges end: in 1/256 pixel the difference of any two coordinates still fits 31 bits.
constexpr double limit = 1 << 21;

/// Cells a band holds at most (unless one row is longer). Only those along edges are touched, so
/// most outlines need no second band, and what is touched stays in the cache.
constexpr int bandCells = 1 << 18;

std::int32_t toSubpixels(double v) {
    // Truncation of a positive number is a floor, and a machine instruction.
    constexpr std::int64_t bias = std::int64_t{1} << 32;
    return static_cast<std::int32_t>(
        static_cast<std::int64_t>(v * CoverageBand::subpixels + (double(bias) + 0.5)) - bias);
}

struct SubpixelPoint {
    std::int32_t x;
    std::int32_t y;

    explicit SubpixelPoint(Point p) : x(toSubpixels(p.x)), y(toSubpixels(p.y)) {}
};

bool isFinite(std::span<const Point> points) {
    return std::all_of(points.begin(), points.end(),
                       [](Point p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

/// The smallest rectangle that holds some points.
struct Bounds {
    double minX = limit;
    double minY = limit;
    double maxX = -limit;
    double maxY = -limit;
    double poison = 0;  ///< not a number if a coordinate is not finite

    void add(std::span<const Point> points) {
        for (const Point p : points) {
            minX = std::min(minX, p.x);
            minY = std::min(minY, p.y);
            maxX = std::max(maxX, p.x);
            maxY = std::max(maxY, p.y);
            poison += (p.x - p.x) + (p.y - p.y);
        }
    }

    bool isWithinLimit() const {
        return poison == 0 && minX >= -limit && minY >= -limit && maxX <= limit && maxY <= limit;
    }

    IntRect touchedPixels() const {
        const auto toInt = [](double v) { return static_cast<int>(std::clamp(v, -limit, limit)); };
        return {toInt(std::floor(minX)), toInt(std::floor(minY)), toInt(std::floor(maxX) + 1),
                toInt(std::floor(maxY) + 1)};
    }
};

/// Fills an outline band by band. Edges go to the first band at once, which is most often the only
/// one; what they have in later bands is filed by the band in which that begins.
class BandFiller {
public:
    void fill(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color);

private:
    struct Entry {
        OutlineEdge edge;
        std::int32_t next;  ///< of the same band
    };
    static constexpr std::int32_t none = -1;

    void addOutline(const FlattenedPath& outline, const Bounds& bounds);
    void addPolygon(std::span<const Point> points);
    void addClippedPolygon(std::span<const Point> points);
    void addClippedSegment(Point from, Point to);
    void addEdge(SubpixelPoint from, SubpixelPoint to);
    void fileEdge(const OutlineEdge& edge, int band);
    void addFiledEdges(int band);

    int bandCount() const { return (box_.height() + bandRows_ - 1) / bandRows_; }
    /// The first row below a band.
    int bandBottom(int band) const {
        return std::min(box_.top + (band + 1) * bandRows_, box_.bottom);
    }

    IntRect box_;
    int bandRows_ = 1;
    CoverageBand band_;
    std::vector<Entry> entries_;
    std::vector<std::int32_t> bandHeads_;
};

void BandFiller::fill(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color) {
    Bounds bounds;
    bounds.add(outline.points);
    box_ = target.area.intersectedWith(bounds.touchedPixels());
    if (box_.isEmpty()) return;

    bandRows_ = std::clamp(bandCells / box_.width(), 1, box_.height());
    entries_.clear();
    bandHeads_.assign(static_cast<std::size_t>(bandCount()), none);
    IntRect area = box_;
    for (int band = 0; band < bandCount(); ++band) {
        area.bottom = bandBottom(band);
        band_.reset(area);
        if (band == 0)
            addOutline(outline, bounds);
        else
            addFiledEdges(band);
        band_.blendInto(target, color);
        area.top = area.bottom;
    }
}

void BandFiller::addOutline(const FlattenedPath& outline, const Bounds& bounds) {
    for (const auto& part : outline.subPaths) {
        const auto points = outline.pointsOf(part);
        if (points.size() < 2) continue;
        if (bounds.isWithinLimit())
            addPolygon(points);
        else
            addClippedPolygon(points);
    }
}

void BandFiller::addPolygon(std::span<const Point> points) {
    SubpixelPoint from(points.back());
    for (const Point p : points) {
        const SubpixelPoint to(p);
        addEdge(from, to);
        from = to;
    }
}

void BandFiller::addClippedPolygon(std::span<const Point> points) {
    if (!isFinite(points)) return;
    Point from = points.back();
    for (const Point to : points) {
        addClippedSegment(from, to);
        from = to;
    }
}

/// Cuts the segment at the upper and lower limit, and lets it follow the left and right one.
void BandFiller::addClippedSegment(Point from, Point to) {
    const auto cut = [&](double t) {
        // Weighting both ends does not overflow where their difference would.
        return Point{from.x * (1 - t) + to.x * t, from.y * (1 - t) + to.y * t};
    };
    const auto crossing = [](double a, double b, double at) {
        // Halves, again so that the difference of two huge numbers stays finite.
        return std::clamp((at / 2 - a / 2) / (b / 2 - a / 2), 0.0, 1.0);
    };
    if (std::max(from.y, to.y) <= -limit || std::min(from.y, to.y) >= limit) return;

    std::array<double, 6> cuts{0, 1};
    std::size_t count = 2;
    for (const double at : {-limit, limit}) {
        if ((from.y < at) != (to.y < at)) cuts[count++] = crossing(from.y, to.y, at);
        if ((from.x < at) != (to.x < at)) cuts[count++] = crossing(from.x, to.x, at);
    }
    std::ranges::sort(std::span(cuts).first(count));
    const auto moved = [](Point p) {
        return Point{std::clamp(p.x, -limit, limit), std::clamp(p.y, -limit, limit)};
    };
    Point last = moved(from);
    for (std::size_t i = 1; i < count; ++i) {
        const Point next = i + 1 == count ? moved(to) : moved(cut(cuts[i]));
        addEdge(SubpixelPoint(last), SubpixelPoint(next));
        last = next;
    }
}

void BandFiller::addEdge(SubpixelPoint from, SubpixelPoint to) {
    if (from.y == to.y) return;
    const bool isDown = from.y < to.y;
    const SubpixelPoint upper = isDown ? from : to;
    const SubpixelPoint lower = isDown ? to : from;
    const OutlineEdge edge{upper.x, upper.y, lower.x, lower.y, isDown ? 1 : -1};
    constexpr int one = CoverageBand::subpixels;
    if (edge.y1 <= box_.top * one || edge.y0 >= box_.bottom * one ||
        std::min(edge.x0, edge.x1) >= box_.right * one)
        return;
    if (edge.y0 < bandBottom(0) * one) {
        band_.add(edge);
        if (edge.y1 > bandBottom(0) * one) fileEdge(edge, 1);
    } else {
        fileEdge(edge, ((edge.y0 >> CoverageBand::subpixelBits) - box_.top) / bandRows_);
    }
}

void BandFiller::fileEdge(const OutlineEdge& edge, int band) {
    if (band >= bandCount()) return;
    std::int32_t& head = bandHeads_[static_cast<std::size_t>(band)];
    entries_.push_back({edge, head});
    head = static_cast<std::int32_t>(entries_.size() - 1);
}

/// Adds the edges filed for a band and files those that go on for the next.
void BandFiller::addFiledEdges(int band) {
    const std::int32_t bottom = bandBottom(band) * CoverageBand::subpixels;
    for (std::int32_t at = bandHeads_[static_cast<std::size_t>(band)]; at != none;) {
        Entry& entry = entries_[static_cast<std::size_t>(at)];
        const std::int32_t next = entry.next;
        band_.add(entry.edge);
        if (entry.edge.y1 > bottom && band + 1 < bandCount()) {
            std::int32_t& head = bandHeads_[static_cast<std::size_t>(band) + 1];
            entry.next = head;
            head = at;
        }
        at = next;
    }
}

}  // namespace

void fillOutline(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color) {
    // Kept between calls for its memory only.
    thread_local BandFiller filler;
    filler.fill(outline, target, color);
}

}  // namespace marlevo
