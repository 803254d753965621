#pragma once

#include "graphics/Blend.h"
#include "graphics/IntRect.h"
#include "graphics/PixelBuffer.h"
#include "graphics/Point.h"

#include <cstddef>
#include <memory>
#include <span>

namespace marlevo {

/// A line, drawn with a round pen, that grows at its end. Keeps the coverage of each pixel, so that
/// drawing costs no more as the line gets longer. Pixels get the bytes that
/// BitmapContext::strokePath() gives them for the whole line.
class IncrementalStroke {
public:
    /// Points of the line are at most this far from 0.
    static constexpr double maxCoordinate = 1 << 16;

    virtual ~IncrementalStroke() = default;

    /// A stroke without a line, for a pen `deviceWidth` pixels wide, a positive number.
    static std::unique_ptr<IncrementalStroke> make(double deviceWidth);

    /// Appends the points `fixed` to the line, and a straight last segment to `end` that the next
    /// call replaces. The first call must fix a point. Points are on the device plane, as flatten()
    /// gives them. Returns the pixels that may have changed.
    virtual IntRect extend(std::span<const Point> fixed, Point end) = 0;

    virtual void blendInto(const PixelBuffer& target, PackedColor color) const = 0;

    /// Memory for pixels, in bytes.
    virtual std::size_t bytes() const = 0;
};

}  // namespace marlevo
