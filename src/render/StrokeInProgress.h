#pragma once

#include "graphics/IncrementalStroke.h"
#include "graphics/IntRect.h"
#include "graphics/PixelBuffer.h"
#include "model/Stroke.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace marlevo {

/// The stroke that is being drawn, as the screen shows it over the finished picture: in the very
/// bytes that drawing it whole would give. A freehand one is kept as what it covers, so that an
/// event costs no more the longer it gets.
class StrokeInProgress {
public:
    /// A stroke that needs more than `maxGrowingBytes` for its coverage is drawn whole.
    explicit StrokeInProgress(std::size_t maxGrowingBytes = std::size_t{64} << 20)
        : maxGrowingBytes_(maxGrowingBytes) {}

    /// Takes the stroke as it is now, if there is one, seen at `scale` device pixels a canvas
    /// pixel. Gives the device pixels that may look other than before.
    IntRect update(const std::optional<Stroke>& stroke, double scale);

    /// Whether the stroke is shown and `other` would look the very same.
    bool looksLike(const Stroke& other) const;

    void paint(const PixelBuffer& target) const;

    /// Memory for the coverage of a growing stroke; 0 if the stroke is drawn whole.
    std::size_t growingBytes() const { return growing_ ? growing_->bytes() : 0; }

private:
    bool isContinuedBy(const Stroke& stroke, double scale) const;
    void startGrowing();
    IntRect grow(std::size_t known);
    IntRect areaFrom(std::size_t firstPoint) const;

    /// Points apart, since holding on to a list that grows would make it move.
    std::optional<Stroke> style_;
    std::vector<Point> points_;
    double scale_ = 0;
    std::size_t maxGrowingBytes_;
    std::unique_ptr<IncrementalStroke> growing_;  ///< of a stroke that is drawn piece by piece
    std::size_t curvesDrawn_ = 0;                 ///< for good
};

}  // namespace marlevo
