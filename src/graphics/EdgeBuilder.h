#pragma once

#include "graphics/AccumulationBuffer.h"
#include "graphics/Bounds.h"
#include "graphics/ClipToBorder.h"
#include "graphics/FlattenedPath.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace marlevo {

/// Converts the contours of an outline to the edges that an AccumulationBuffer takes: corners are
/// rounded to subpixels, contours count as closed, and segments beyond `limit` follow that border.
/// A contour with a coordinate that is not finite is left out.
class EdgeBuilder {
public:
    /// In pixels. In subpixels the difference of two such coordinates fits 31 bits.
    static constexpr double limit = 1 << 21;

    explicit EdgeBuilder(const FlattenedPath& outline) : outline_(outline) {
        for (const Point p : outline.points) {
            bounds_.include(p);
            nonFinite_ += (p.x - p.x) + (p.y - p.y);
        }
    }

    /// The pixels within `clip` that the outline may touch.
    IntRect touchedPixels(const IntRect& clip) const {
        constexpr int end = static_cast<int>(limit);
        const IntRect within = clip.intersectedWith({-end, -end, end, end});
        return within.isEmpty() ? IntRect{} : bounds_.pixelsWithin(within);
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
        for (const auto& contour : outline_.contours) {
            const auto points = outline_.pointsOf(contour);
            if (points.size() < 2) continue;
            if (isWithinLimit())
                forEachInside(points, addSegment);
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
            // For a positive number, truncation, which is one instruction, is the floor.
            constexpr std::int64_t bias = std::int64_t{1} << 32;
            return static_cast<std::int32_t>(
                static_cast<std::int64_t>(v * AccumulationBuffer::subpixels +
                                          (double(bias) + 0.5)) -
                bias);
        }
    };

    bool isWithinLimit() const {
        return nonFinite_ == 0 && bounds_.left >= -limit && bounds_.top >= -limit &&
               bounds_.right <= limit && bounds_.bottom <= limit;
    }

    template <typename AddSegment>
    static void forEachInside(std::span<const Point> points, const AddSegment& addSegment) {
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
        SubpixelPoint last(nearestInSquare(from, limit));
        for (const Point to : points) {
            clipToBorder(from, to, limit, [&](Point p) {
                const SubpixelPoint next(p);
                addSegment(last, next);
                last = next;
            });
            from = to;
        }
    }

    const FlattenedPath& outline_;
    Bounds bounds_;
    double nonFinite_ = 0;  ///< not a number if a coordinate is not finite, else 0
};

}  // namespace marlevo
