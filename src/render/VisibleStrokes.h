#pragma once

#include "graphics/BitmapContext.h"
#include "graphics/FrontToBackContext.h"
#include "graphics/IntRect.h"
#include "model/FloatBox.h"
#include "render/LayerRun.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace marlevo {

/// Draws one stroke, in the same way on each kind of context.
using DrawStroke = std::function<void(GraphicsContext&, const Stroke&)>;

/// The strokes of a run of layers that may be visible in an area, to be drawn part by part. Several
/// threads may draw at the same time. Valid as long as the layers are unchanged.
class VisibleStrokes {
public:
    /// Finds the strokes that may touch `area`, in device pixels at `scale` device pixels per
    /// canvas pixel.
    VisibleStrokes(const LayerRun& run, const IntRect& area, double scale);

    std::size_t count() const { return found_.size(); }

    /// Draws the strokes that may be visible in the context's area. Leaves out those that opaque
    /// strokes hide: an opaque pixel does not depend on what is below it. When as much is recorded
    /// as `limits` allow, draws the strokes below without leaving any out.
    void draw(BitmapContext& context, const DrawStroke& drawStroke,
              FrontToBackContext::Limits limits = {}) const;

private:
    struct Found {
        const Stroke* stroke = nullptr;
        FloatBox box;
    };

    double scale_;
    std::vector<Found> found_;  ///< in drawing order
};

}  // namespace marlevo
