#pragma once

#include "graphics/BitmapContext.h"
#include "graphics/IntRect.h"
#include "model/Box.h"
#include "render/LayerRun.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace marlevo {

/// Draws one stroke; the same on each kind of context.
using DrawStroke = std::function<void(GraphicsContext&, const Stroke&)>;

/// The strokes of a run of layers that may leave a mark in an area, to be drawn part by part.
/// Several threads may draw at a time. Valid as long as the layers are.
class StrokesInSight {
public:
    /// Those that may touch the device pixels of `area`, seen at `scale` device pixels a canvas
    /// pixel.
    StrokesInSight(const LayerRun& run, const IntRect& area, double scale);

    std::size_t count() const { return found_.size(); }

    /// Draws on a context what may be seen of them there. Those deep below opaque ones are left
    /// out: an opaque pixel is the same whatever was below it.
    void draw(BitmapContext& context, const DrawStroke& drawStroke) const;

private:
    struct Found {
        const Stroke* stroke = nullptr;
        Box box;
    };

    double scale_;
    std::vector<Found> found_;  ///< in drawing order
};

}  // namespace marlevo
