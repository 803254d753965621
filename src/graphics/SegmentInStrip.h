#pragma once

#include "graphics/Point.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

/// A line segment, to measure its distances from pixel centres.
struct MeasuredSegment {
    MeasuredSegment(Point a, Point b)
        : middle{a.x + (b.x - a.x) * 0.5, a.y + (b.y - a.y) * 0.5},
          anchorRow(std::floor(middle.y)) {
        const double dx = b.x - a.x;
        const double dy = b.y - a.y;
        const double length = std::sqrt(dx * dx + dy * dy);
        const double perLength = length > 0 ? 1 / length : 0;
        cosine = length > 0 ? dx * perLength : 1;
        sine = dy * perLength;
        halfLength = length * 0.5;
    }

    Point middle;
    double anchorRow;  ///< the pixel row through the middle; rows are counted from it
    double cosine;
    double sine;
    double halfLength;
};

/// A segment as the pixels of a vertical strip see it, in single precision.
///
/// `across` and `along` place the centre of the strip's first pixel in the anchor row, in a frame
/// turned so that the segment lies on its first axis with its middle at 0. What is rounded depends
/// on the segment and the strip only, never on the part of the plane that is painted.
struct SegmentInStrip {
    /// `left` is the strip's first column on the device plane.
    SegmentInStrip(const MeasuredSegment& segment, double left)
        : cosine(static_cast<float>(segment.cosine)), sine(static_cast<float>(segment.sine)),
          halfLength(static_cast<float>(segment.halfLength)) {
        const double x = left + 0.5 - segment.middle.x;
        const double y = segment.anchorRow + 0.5 - segment.middle.y;
        across = static_cast<float>(y * segment.cosine - x * segment.sine);
        along = static_cast<float>(x * segment.cosine + y * segment.sine);
    }

    /// The squared distance of a pixel's centre; `column` counts from the strip's first, `row`
    /// from the anchor row, both whole numbers.
    float squaredDistance(float column, float row) const {
        const float off = (across - column * sine) + row * cosine;
        const float from = std::abs((along + column * cosine) + row * sine);
        const float past = std::max(from - halfLength, 0.0F);
        return off * off + past * past;
    }

    float across;
    float along;
    float cosine;
    float sine;
    float halfLength;
};

}  // namespace marlevo
