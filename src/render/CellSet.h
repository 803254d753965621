#pragma once

#include "graphics/TileMap.h"
#include "render/TileCells.h"

#include <cstddef>

namespace marlevo {

/// A set of cells of the device plane. Only the cells that were allowed can be in it, so that an
/// area without bounds costs no more than they do. Areas are device pixels.
class CellSet {
public:
    /// The cells of one tile that may be added.
    void allow(const IntRect& tile, CellMask cells);

    /// An empty set with the same allowed cells.
    CellSet emptied() const;

    /// Adds the allowed cells that the area touches.
    void add(const IntRect& area);
    void add(const CellSet& other);

    /// True if the area touches no cell that could still be added.
    bool covers(const IntRect& area) const;

    /// True if all allowed cells are in the set.
    bool isFull() const { return missing_ == 0; }

    /// The smallest rectangle with all allowed cells.
    const IntRect& allowedArea() const { return allowedArea_; }

    /// The cells of a tile that are in the set.
    CellMask in(const IntRect& tile) const;

private:
    struct Part {
        explicit Part(const IntRect& place) : area(place) {}

        IntRect area;
        CellMask allowed = 0;
        CellMask cells = 0;
    };

    TileMap<Part, tileSide> parts_;
    IntRect allowedArea_;
    std::size_t missing_ = 0;  ///< allowed cells that are not in the set
};

}  // namespace marlevo
