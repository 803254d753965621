#pragma once

#include "graphics/IntRect.h"
#include "model/LayerList.h"

#include <vector>

namespace marlevo {

/// What turns the picture of one stack of layers into that of another, as it is seen at a scale.
/// Found by what the two share, in time in proportion to what they do not.
struct PictureDifference {
    std::vector<IntRect> damage;  ///< device pixels to be painted anew; may reach beyond the canvas

    /// Strokes of `after` that need no more than to be drawn over all the rest, in this order.
    /// Valid as long as that list is unchanged.
    std::vector<const Stroke*> drawnOver;

    bool isEmpty() const { return damage.empty() && drawnOver.empty(); }

    /// `scale` in device pixels a canvas pixel.
    static PictureDifference between(const LayerList& before, const LayerList& after, double scale);
};

}  // namespace marlevo
