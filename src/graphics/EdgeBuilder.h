#pragma once

#include "graphics/AccumulationBuffer.h"
#include "graphics/FlattenedPath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace marlevo {

/// Takes an outline apart into the edges that a AccumulationBuffer adds up, with corners rounded to
/// its subpixels. Each sub-path counts as closed; what lies beyond `limit` is moved to that border.
class EdgeBuilder {
public:
    /// Where edges end, in pixels: in subpixels the difference of any two coordinates still fits
    /// 31 bits.
    static constexpr double limit = 1 << 21;

    explicit EdgeBuilder(const FlattenedPath& outline) : outline_(outline) {
        for (const Point p : outline.points) {
            minX_ = std::min(minX_, p.x);
            minY_ = std::min(minY_, p.y);
            maxX_ = std::max(maxX_, p.x);
            maxY_ = std::max(maxY_, p.y);
            nonFinite_ += (p.x - p.x) + (p.y - p.y);
        }
    }

    /// The pixels that the outline may touch.
    IntRect touchedPixels() const {
        const auto toInt = [](double v) { return static_cast<int>(std::clamp(v, -limit, limit)); };
        return {toInt(std::floor(minX_)), toInt(std::floor(minY_)), toInt(std::floor(maxX_) + 1),
                toInt(std::floor(maxY_) + 1)};
    }

    /// Calls `add` with each edge that is not level.
    template <typename Add>
    void forEach(Add add) const {
        const auto addSegment = [&](SubpixelPoint from, SubpixelPoint to) {
            if (from.y == to.y) return;
            const bool isDown = from.y < to.y;
            const SubpixelPoint upper = isDown ? from : to;
            const SubpixelPoint lower = isDown ? to : from;
            add(Edge{upper.x, upper.y, lower.x, lower.y, isDown ? 1 : -1});
        };
        for (const auto& part : outline_.contours) {
            const auto points = outline_.pointsOf(part);
            if (points.size() < 2) continue;
            if (isWithinLimit())
                forEachOf(points, addSegment);
            else
                forEachClipped(points, addSegment);
        }
    }

private:
    struct SubpixelPoint {
        std::int32_t x;
        std::int32_t y;

        explicit SubpixelPoint(Point p) : x(toSubpixels(p.x)), y(toSubpixels(p.y)) {}

        static std::int32_t toSubpixels(double v) {
            // Truncation of a positive number is a floor, and a machine instruction.
            constexpr std::int64_t bias = std::int64_t{1} << 32;
            return static_cast<std::int32_t>(
                static_cast<std::int64_t>(v * AccumulationBuffer::subpixels +
                                          (double(bias) + 0.5)) -
                bias);
        }
    };

    bool isWithinLimit() const {
        return nonFinite_ == 0 && minX_ >= -limit && minY_ >= -limit && maxX_ <= limit &&
               maxY_ <= limit;
    }

    template <typename AddSegment>
    static void forEachOf(std::span<const Point> points, const AddSegment& addSegment) {
        SubpixelPoint from(points.back());
        for (const Point p : points) {
            const SubpixelPoint to(p);
            addSegment(from, to);
            from = to;
        }
    }

    template <typename AddSegment>
    static void forEachClipped(std::span<const Point> points, const AddSegment& addSegment) {
        const bool isFinite = std::all_of(points.begin(), points.end(), [](Point p) {
            return std::isfinite(p.x) && std::isfinite(p.y);
        });
        if (!isFinite) return;
        Point from = points.back();
        for (const Point to : points) {
            clip(from, to, addSegment);
            from = to;
        }
    }

    /// Cuts the segment at the upper and lower limit, and lets it follow the left and right one.
    template <typename AddSegment>
    static void clip(Point from, Point to, const AddSegment& addSegment) {
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
            addSegment(SubpixelPoint(last), SubpixelPoint(next));
            last = next;
        }
    }

    const FlattenedPath& outline_;
    double minX_ = limit;
    double minY_ = limit;
    double maxX_ = -limit;
    double maxY_ = -limit;
    double nonFinite_ = 0;  ///< not a number if a coordinate is not finite
};

}  // namespace marlevo
