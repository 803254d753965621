#pragma once

#include "graphics/IntRect.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>

namespace marlevo {

/// Square parts of the device plane, `side` pixels wide, created on first use. A Tile is
/// constructible from its place and has it as its member `area`.
template <typename Tile, int side>
class TileMap {
public:
    /// Calls `visit` with each tile that the area touches; creates those that are missing.
    template <typename Visit>
    void forEachTile(const IntRect& area, Visit visit) {
        const Range range(area);
        for (int row = range.top; row < range.bottom; ++row) {
            for (int column = range.left; column < range.right; ++column) {
                const IntRect place{column * side, row * side, (column + 1) * side,
                                    (row + 1) * side};
                visit(tiles_.try_emplace(key(column, row), place).first->second);
            }
        }
    }

    /// Calls `visit` with each existing tile that the area touches, row by row from left to right.
    /// The order is undefined if the area touches more places than there are tiles.
    template <typename Visit>
    void forEachKnownTile(const IntRect& area, Visit visit) {
        visitKnown(*this, area, visit);
    }
    template <typename Visit>
    void forEachKnownTile(const IntRect& area, Visit visit) const {
        visitKnown(*this, area, visit);
    }

    /// Calls `visit` with each existing tile.
    template <typename Visit>
    void forEachKnownTile(Visit visit) {
        for (auto& [key, tile] : tiles_)
            visit(tile);
    }
    template <typename Visit>
    void forEachKnownTile(Visit visit) const {
        for (const auto& [key, tile] : tiles_)
            visit(tile);
    }

    std::size_t size() const { return tiles_.size(); }
    void clear() { tiles_.clear(); }

    void dropTilesOutside(const IntRect& area) {
        std::erase_if(tiles_, [&](const auto& entry) {
            return entry.second.area.intersectedWith(area).isEmpty();
        });
    }

private:
    /// Columns and rows of the tiles that an area touches.
    struct Range : IntRect {
        explicit Range(const IntRect& area)
            : IntRect{floorDivide(area.left), floorDivide(area.top),
                      floorDivide(area.right - 1) + 1, floorDivide(area.bottom - 1) + 1} {
            if (area.isEmpty()) right = left;
        }
        std::size_t count() const {
            return isEmpty() ? 0 : static_cast<std::size_t>(width()) * height();
        }
    };

    template <typename Map, typename Visit>
    static void visitKnown(Map& map, const IntRect& area, Visit& visit) {
        const Range range(area);
        if (range.count() > map.size()) {
            for (auto& [key, tile] : map.tiles_)
                if (!tile.area.intersectedWith(area).isEmpty()) visit(tile);
            return;
        }
        for (int row = range.top; row < range.bottom; ++row) {
            for (int column = range.left; column < range.right; ++column) {
                const auto known = map.tiles_.find(key(column, row));
                if (known != map.tiles_.end()) visit(known->second);
            }
        }
    }

    static int floorDivide(int value) {
        return value >= 0 ? value / side : -1 - (-1 - value) / side;
    }
    static std::uint64_t key(int column, int row) {
        return std::uint64_t{static_cast<std::uint32_t>(row)} << 32 |
               static_cast<std::uint32_t>(column);
    }

    std::unordered_map<std::uint64_t, Tile> tiles_;  ///< by column and row
};

}  // namespace marlevo
