#pragma once

#include "graphics/PixelBuffer.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace marlevo {

/// Square parts of a picture on the device plane, kept so that they need not be painted again.
class TileCache {
public:
    static constexpr int tileSide = 256;
    static constexpr std::size_t tileBytes = std::size_t{tileSide} * tileSide * 4;

    struct Tile {
        explicit Tile(const IntRect& place) : area(place), stale(place), pixels(tileBytes) {}

        PixelBuffer buffer() {
            return {pixels.data(), std::ptrdiff_t{tileSide} * 4, area, PixelOrder::bgra};
        }

        IntRect area;
        IntRect stale;    ///< the part that must be painted before it is used; all at first
        IntRect changed;  ///< the part to be reported as looking other than before
        std::vector<std::uint8_t> pixels;
    };

    /// Calls `visit` with each tile that the area touches; new ones are made.
    template <typename Visit>
    void forEachTile(const IntRect& area, Visit visit) {
        const TileRange range(area);
        for (int row = range.top; row < range.bottom; ++row) {
            for (int column = range.left; column < range.right; ++column) {
                const IntRect place{column * tileSide, row * tileSide, (column + 1) * tileSide,
                                    (row + 1) * tileSide};
                visit(tiles_.try_emplace(key(column, row), place).first->second);
            }
        }
    }

    /// Calls `visit` with each tile at hand that the area touches.
    template <typename Visit>
    void forEachKnownTile(const IntRect& area, Visit visit) {
        const TileRange range(area);
        if (range.count() > tiles_.size()) {
            forEachKnownTile([&](Tile& tile) {
                if (!tile.area.intersectedWith(area).isEmpty()) visit(tile);
            });
            return;
        }
        for (int row = range.top; row < range.bottom; ++row) {
            for (int column = range.left; column < range.right; ++column) {
                const auto known = tiles_.find(key(column, row));
                if (known != tiles_.end()) visit(known->second);
            }
        }
    }

    template <typename Visit>
    void forEachKnownTile(Visit visit) {
        for (auto& [key, tile] : tiles_)
            visit(tile);
    }

    std::size_t bytes() const { return tiles_.size() * tileBytes; }
    void clear() { tiles_.clear(); }

    void dropTilesOutside(const IntRect& area) {
        std::erase_if(tiles_, [&](const auto& entry) {
            return entry.second.area.intersectedWith(area).isEmpty();
        });
    }

private:
    /// Columns and rows of the tiles that an area touches.
    struct TileRange : IntRect {
        explicit TileRange(const IntRect& area)
            : IntRect{floorDivide(area.left), floorDivide(area.top),
                      floorDivide(area.right - 1) + 1, floorDivide(area.bottom - 1) + 1} {
            if (area.isEmpty()) right = left;
        }
        std::size_t count() const {
            return isEmpty() ? 0 : static_cast<std::size_t>(width()) * height();
        }
    };

    static int floorDivide(int value) {
        return value >= 0 ? value / tileSide : -1 - (-1 - value) / tileSide;
    }
    static std::uint64_t key(int column, int row) {
        return std::uint64_t{static_cast<std::uint32_t>(row)} << 32 |
               static_cast<std::uint32_t>(column);
    }

    std::unordered_map<std::uint64_t, Tile> tiles_;  ///< by column and row
};

}  // namespace marlevo
