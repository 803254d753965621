#pragma once

#include "graphics/IntRect.h"
#include "graphics/Point.h"
#include "graphics/Rect.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace marlevo {

/// A box with edges at any positions. A default-constructed box is empty and touches
/// nothing.
struct Bounds {
    double left = std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();

    /// The smallest box that holds all points.
    static Bounds of(std::span<const Point> points) {
        Bounds bounds;
        for (const Point p : points)
            bounds.include(p);
        return bounds;
    }
    static Bounds of(const IntRect& area) {
        return {double(area.left), double(area.top), double(area.right), double(area.bottom)};
    }
    static Bounds of(const Rect& rect) {
        return {rect.minX(), rect.minY(), rect.maxX(), rect.maxY()};
    }

    /// Extends the box to the point. A coordinate that is not a number is ignored.
    void include(Point p) {
        left = std::min(left, p.x);
        top = std::min(top, p.y);
        right = std::max(right, p.x);
        bottom = std::max(bottom, p.y);
    }

    Bounds grownBy(double margin) const {
        return {left - margin, top - margin, right + margin, bottom + margin};
    }

    /// True if the boxes share a point; common edges count.
    bool touches(const Bounds& other) const {
        return left <= other.right && right >= other.left && top <= other.bottom &&
               bottom >= other.top;
    }

    /// True if all of this box, which may be empty, is in the other one.
    bool isWithin(const Bounds& other) const {
        return left >= other.left && top >= other.top && right <= other.right &&
               bottom <= other.bottom;
    }

    /// The box, rounded outwards to whole pixels, within `clip`, which is not empty.
    IntRect pixelsWithin(const IntRect& clip) const {
        const auto within = [](double value, int low, int high) {
            return static_cast<int>(std::clamp<double>(value, low, high));
        };
        return {within(std::floor(left), clip.left, clip.right),
                within(std::floor(top), clip.top, clip.bottom),
                within(std::ceil(right), clip.left, clip.right),
                within(std::ceil(bottom), clip.top, clip.bottom)};
    }
};

}  // namespace marlevo
