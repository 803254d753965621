#pragma once

#include "render/KeptCells.h"
#include "render/PictureDifference.h"

#include <cstddef>
#include <optional>
#include <unordered_map>

namespace marlevo {

/// Finds the kept version of a cell from which the cell's pixels in one picture can be made. Used
/// for the time of one change of the picture; compares each two pictures once.
class CellSearch {
public:
    /// The cells are those of `allowed`, at `scale` device pixels per canvas pixel.
    CellSearch(const LayerList& wanted, double scale, const CellSet& allowed)
        : wanted_(wanted), scale_(scale), allowed_(allowed) {}

    /// The index of the version that belongs to a picture that is the same as the wanted one.
    std::optional<std::size_t> findSame(const KeptCells::Versions& versions);

    struct Found {
        std::size_t version;                  ///< index among the cell's versions
        const PictureDifference* difference;  ///< from its picture to the wanted one
        bool needsStrokes;  ///< the difference's strokes are to be drawn over the pixels
    };

    /// The version of another picture that is the same in the cell, or is with strokes drawn over
    /// it. `cell` is its bit in the tile. The difference is valid as long as this object and the
    /// wanted picture are unchanged.
    std::optional<Found> findSimilar(const KeptCells::Versions& versions, const IntRect& tile,
                                     CellMask cell);

    /// A picture among those looked at that is the same as the wanted one; null if there is none.
    const ShownPicturePtr& samePicture() const { return same_; }

private:
    struct Relation {
        bool isSame = false;
        bool isCompared = false;
        std::optional<PictureDifference> difference;  ///< nothing if too large
    };

    Relation& relationTo(const ShownPicturePtr& picture);
    const PictureDifference* differenceFrom(const ShownPicturePtr& picture);

    const LayerList& wanted_;
    std::size_t wantedStrokes_ = countPaintedStrokes(wanted_);
    double scale_;
    const CellSet& allowed_;
    ShownPicturePtr same_;
    std::unordered_map<const ShownPicture*, Relation> relations_;
    std::size_t comparisons_ = 0;
};

}  // namespace marlevo
