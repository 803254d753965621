#pragma once

#include "graphics/Blend.h"
#include "graphics/IntRect.h"
#include "graphics/PixelBuffer.h"
#include "graphics/Point.h"

#include <memory>
#include <span>

namespace marlevo {

/// A line drawn with a round pen that grows at its end, kept as what it covers of each pixel, so
/// that showing it costs no more the longer it gets. At each moment it gives pixels the very bytes
/// that BitmapContext::strokePath gives them for the whole line.
class IncrementalStroke {
public:
    static constexpr double maxCoordinate = 1 << 16;

    virtual ~IncrementalStroke() = default;

    /// A stroke without a line, for a pen `deviceWidth` pixels wide, a positive number.
    static std::unique_ptr<IncrementalStroke> make(double deviceWidth);

    /// Adds `fixed` to the line for good and lets it go on straight to `end` until the next call.
    /// The first call must fix a point. Points on the device plane, as flattening gives them,
    /// within FlattenedPath::maxCoordinate. Gives the pixels that may have changed.
    virtual IntRect extend(std::span<const Point> fixed, Point end) = 0;

    virtual void blendInto(const PixelBuffer& target, PackedColor color) const = 0;

    /// Memory that is kept for pixels.
    virtual std::size_t bytes() const = 0;
};

}  // namespace marlevo
