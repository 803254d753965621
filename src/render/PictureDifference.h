#pragma once

#include "graphics/IntRect.h"
#include "model/LayerList.h"

#include <vector>

namespace marlevo {

/// The repaints that turn the picture of one stack of layers into that of another. Found in time
/// proportional to what the two do not share.
struct PictureDifference {
    std::vector<IntRect> damage;  ///< device pixels to repaint; may extend beyond the canvas

    /// Strokes of `after` for which drawing them over everything else, in this order, is enough.
    /// Valid as long as that list is unchanged.
    std::vector<const Stroke*> drawnOver;

    bool isEmpty() const { return damage.empty() && drawnOver.empty(); }

    /// `scale` is device pixels per canvas pixel.
    static PictureDifference between(const LayerList& before, const LayerList& after, double scale);
};

}  // namespace marlevo
