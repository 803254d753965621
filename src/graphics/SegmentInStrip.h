#pragma once

#include "graphics/Point.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

/// A line segment, prepared for measuring distances of pixel centres from it.
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
    double anchorRow;  ///< the pixel row of the middle; other rows are counted from it
    double cosine;
    double sine;
    double halfLength;
};

/// A segment relative to the pixels of a vertical strip, in single precision.
///
/// `across` and `along` are the coordinates of the centre of the strip's first pixel in the anchor
/// row, in a frame turned so that the segment is on its first axis with its middle at 0. Rounding
/// depends on the segment and the strip only, never on the part of the plane that is painted.
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

    /// The squared distance of a pixel's centre. `column` is counted from the strip's first column,
    /// `row` from the anchor row; both are whole numbers.
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
