#pragma once

#include "model/LayerList.h"
#include "render/CellPixels.h"
#include "render/TileCells.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace marlevo {

/// The number of strokes in the visible layers.
std::size_t countPaintedStrokes(const LayerList& layers);

/// A stack of layers that was shown.
struct ShownPicture {
    LayerList layers;
    std::size_t strokes = countPaintedStrokes(layers);
};

using ShownPicturePtr = std::shared_ptr<const ShownPicture>;

/// The pixels that a cell had in a picture.
struct KeptCell {
    ShownPicturePtr picture;
    CellPixels pixels;
    std::uint64_t usedAt;  ///< greater for a later change

    std::size_t bytes() const { return sizeof *this + pixels.bytes(); }
};

/// Versions of the cells of one tile, each with the picture that it belongs to. The versions of a
/// cell are in the order of their pictures in the history, as far as that is known.
class KeptCells {
public:
    using Versions = std::vector<KeptCell>;

    Versions& of(int cell) { return versions_[static_cast<std::size_t>(cell)]; }

    /// Adds a version, unless the cell has one of this picture.
    void keep(int cell, const ShownPicturePtr& picture, const PixelBuffer& pixels,
              std::uint64_t usedAt);

    /// Of each cell leaves the oldest version, every second one of those after it, and the two
    /// newest.
    void thin();

    /// Drops the versions that were last used before this.
    void dropUsedBefore(std::uint64_t usedAt);

    template <typename Visit>
    void forEach(Visit visit) const {
        for (const Versions& versions : versions_)
            for (const KeptCell& kept : versions)
                visit(kept);
    }

private:
    std::array<Versions, cellsInTile> versions_;
};

}  // namespace marlevo
