#pragma once

#include "graphics/IntRect.h"
#include "graphics/PixelBuffer.h"
#include "model/Stroke.h"

#include <optional>
#include <vector>

namespace marlevo {

/// The stroke that is being drawn, as the screen shows it over the finished picture.
class StrokeInProgress {
public:
    /// Takes the stroke as it is now, if there is one, seen at `scale` device pixels a canvas
    /// pixel. Gives the device pixels that may look other than before.
    IntRect update(const std::optional<Stroke>& stroke, double scale);

    /// Whether the stroke is shown and `other` would look the very same.
    bool looksLike(const Stroke& other) const;

    void paint(const PixelBuffer& target) const;

private:
    bool isContinuedBy(const Stroke& stroke, double scale) const;
    IntRect areaFrom(std::size_t firstPoint) const;

    /// Points apart, since holding on to a list that grows would make it move.
    std::optional<Stroke> style_;
    std::vector<Point> points_;
    double scale_ = 0;
};

}  // namespace marlevo
