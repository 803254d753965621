#pragma once

#include "model/LayerList.h"
#include "render/CellSet.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace marlevo {

/// The repaints that turn the picture of one stack of layers into that of another. Found in time
/// proportional to what the two do not share.
struct PictureDifference {
    static constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

    CellSet damage;  ///< cells to repaint

    /// Strokes of `after` for which drawing them over everything else, in this order, is enough
    /// outside of the damage. Valid as long as that list is unchanged.
    std::vector<const Stroke*> drawnOver;
    CellSet drawnOverCells;  ///< those that the strokes touch

    // Both also count cells that are not allowed.
    bool isEmpty = true;
    bool isOnlyDrawnOver = true;

    /// The cells in which the two pictures may differ.
    CellMask cellsIn(const IntRect& tile) const {
        return damage.in(tile) | drawnOverCells.in(tile);
    }

    /// `scale` is device pixels per canvas pixel; the cells are found among the allowed ones of
    /// `allowed`. Nothing if the pictures are known to differ by more than `most` strokes.
    static std::optional<PictureDifference> between(const LayerList& before, const LayerList& after,
                                                    double scale, const CellSet& allowed,
                                                    std::size_t most = anyNumber);
};

/// True if both stacks are known to give the same picture: their painted layers share what is
/// painted.
bool showTheSame(const LayerList& a, const LayerList& b);

}  // namespace marlevo
