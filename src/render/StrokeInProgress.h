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

/// The stroke that is being drawn, as the screen shows it over the finished picture: the same bytes
/// as those of drawing it whole. The coverage of a freehand stroke is kept, so that the time for an
/// event does not depend on the stroke's length.
class StrokeInProgress {
public:
    static constexpr std::size_t defaultMaxGrowingBytes = std::size_t{64} << 20;

    /// `maxGrowingBytes` bounds the coverage that is kept; a stroke above it is drawn whole.
    explicit StrokeInProgress(std::size_t maxGrowingBytes = defaultMaxGrowingBytes)
        : maxGrowingBytes_(maxGrowingBytes) {}

    /// Shows the stroke in its present state, or none if it is null, at `scale` device pixels per
    /// canvas pixel. Returns the device pixels that may have changed. After an exception no stroke
    /// is shown.
    IntRect update(const Stroke* stroke, double scale);

    /// True if a stroke is shown and `other` would give the same pixels.
    bool looksLike(const Stroke& other) const;

    void paint(const PixelBuffer& target) const;

    /// Memory for the coverage of a growing stroke; 0 if the stroke is drawn whole.
    std::size_t growingBytes() const { return growing_ ? growing_->bytes() : 0; }

private:
    IntRect follow(const Stroke* stroke, double scale);
    bool isContinuedBy(const Stroke& stroke, double scale) const;
    void startGrowing();
    IntRect grow(std::size_t known);
    IntRect boundsFrom(std::size_t firstPoint) const;

    /// Without the points: a copy that shares them would make the next append copy all of them.
    std::optional<Stroke> style_;
    std::vector<Point> points_;
    double scale_ = 0;
    std::size_t maxGrowingBytes_;
    std::unique_ptr<IncrementalStroke> growing_;  ///< null if drawn whole
    std::size_t curvesDrawn_ = 0;                 ///< those that further points do not change
};

}  // namespace marlevo
