#pragma once

#include "graphics/IntRect.h"

#include <bit>
#include <cstdint>

namespace marlevo {

/// A set of the cells of one tile: bit row × 8 + column. A tile is a square of the device plane,
/// 512 pixels wide; its 64 cells are squares of 64 pixels.
using CellMask = std::uint64_t;

inline constexpr int tileSide = 512;
inline constexpr int cellSide = 64;
inline constexpr int cellsInRow = tileSide / cellSide;
inline constexpr int cellsInTile = cellsInRow * cellsInRow;
inline constexpr CellMask allCells = ~CellMask{0};

/// The pixels of one cell. `tile` is the area of a tile.
inline IntRect cellArea(const IntRect& tile, int cell) {
    const int left = tile.left + cell % cellsInRow * cellSide;
    const int top = tile.top + cell / cellsInRow * cellSide;
    return {left, top, left + cellSide, top + cellSide};
}

/// The tile's cells that an area touches.
inline CellMask cellsTouching(const IntRect& tile, const IntRect& area) {
    const IntRect part = area.intersectedWith(tile);
    if (part.isEmpty()) return 0;
    const int left = (part.left - tile.left) / cellSide;
    const int right = (part.right - 1 - tile.left) / cellSide;
    const int top = (part.top - tile.top) / cellSide;
    const int bottom = (part.bottom - 1 - tile.top) / cellSide;
    constexpr CellMask inEachRow = 0x0101010101010101;
    const CellMask columns = (CellMask{0xFF} >> (cellsInRow - 1 - right + left) << left);
    const CellMask rows = allCells >> (cellsInRow * (cellsInRow - 1 - bottom + top))
                                          << cellsInRow * top;
    return columns * inEachRow & rows;
}

/// Calls `visit` with the number of each cell.
template <typename Visit>
void forEachCell(CellMask cells, Visit visit) {
    for (; cells != 0; cells &= cells - 1)
        visit(std::countr_zero(cells));
}

/// Calls `visit` with rectangles of pixels that have exactly these cells, without overlaps. Takes
/// the widest run of cells in a row, and as many rows below that have all of the run.
template <typename Visit>
void forEachRectangle(const IntRect& tile, CellMask cells, Visit visit) {
    while (cells != 0) {
        const int first = std::countr_zero(cells);
        const int column = first % cellsInRow;
        const int row = first / cellsInRow;
        const auto cellsOfRow = static_cast<unsigned>(cells >> row * cellsInRow & 0xFF);
        const int width = std::countr_one(cellsOfRow >> column);
        const CellMask run = (CellMask{0xFF} >> (cellsInRow - width)) << column;
        int bottom = row;
        while (bottom < cellsInRow && (cells >> bottom * cellsInRow & run) == run) {
            cells &= ~(run << bottom * cellsInRow);
            ++bottom;
        }
        visit(IntRect{tile.left + column * cellSide, tile.top + row * cellSide,
                      tile.left + (column + width) * cellSide, tile.top + bottom * cellSide});
    }
}

}  // namespace marlevo
