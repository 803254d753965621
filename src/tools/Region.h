#pragma once

#include "tools/GridPoint.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace marlevo {

/// A set of cells of the fill grid, one bit a cell. Row 0 is the bottom row, as in GridPoint.
///
/// The grid is stored with a border of empty cells around it (columns −1 and width, rows
/// −1 and height), so that the eight neighbours of every cell can be read without a bounds check.
class Region {
public:
    using Word = std::uint64_t;
    static constexpr int wordBits = 64;

    /// The smallest and largest column and row that have a cell, all inclusive.
    struct Bounds {
        int minX = 0;
        int minY = 0;
        int maxX = 0;
        int maxY = 0;

        friend bool operator==(const Bounds&, const Bounds&) = default;
    };

    /// The empty set in a grid of width × height cells; neither may be negative.
    Region(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }

    /// Whether the cell belongs to the set; false for every cell outside the grid.
    bool contains(GridPoint cell) const;

    /// Adds a cell, which must be inside the grid.
    void insert(GridPoint cell);

    /// The number of cells in the set; takes one pass over the bits.
    std::size_t size() const;

    /// Absent when the set is empty; takes one pass over the bits.
    std::optional<Bounds> bounds() const;

    /// The cells of row `y`, 0 ≤ y < height: column x is bit x % 64 of word x / 64. The
    /// bits from `width` on must stay zero.
    std::span<Word> row(int y) { return {words_.data() + rowStart(y), rowWords_}; }
    std::span<const Word> row(int y) const { return {words_.data() + rowStart(y), rowWords_}; }

    /// The index of a cell's bit. The next column has the next index, the next row an index that is
    /// greater by rowStride(). Cells of the border have an index, too.
    std::ptrdiff_t bitIndex(GridPoint cell) const {
        return static_cast<std::ptrdiff_t>(rowStart(cell.y)) * wordBits + cell.x;
    }
    std::ptrdiff_t rowStride() const {
        return static_cast<std::ptrdiff_t>(rowWords_ + 1) * wordBits;
    }

    /// The cell at a bit index and its eight neighbours as nine bits: from the lowest bit up, the
    /// rows from bottom to top, each from west to east. The cell must be inside the grid.
    unsigned neighbourhood(std::ptrdiff_t bit) const {
        const auto western = static_cast<std::size_t>(bit - 1);
        const Word* word = words_.data() + western / wordBits;
        const unsigned shift = western % wordBits;
        const auto three = [shift](const Word* at) {
            return static_cast<unsigned>(at[0] >> shift | at[1] << 1 << (wordBits - 1 - shift)) & 7;
        };
        return three(word - (rowWords_ + 1)) | three(word) << 3 | three(word + rowWords_ + 1) << 6;
    }

private:
    /// One empty word separates two rows: the eastern border of one and the western border of the
    /// next.
    std::size_t rowStart(int y) const {
        return 1 + static_cast<std::size_t>(y + 1) * (rowWords_ + 1);
    }

    int width_;
    int height_;
    std::size_t rowWords_;
    std::vector<Word> words_;
};

}  // namespace marlevo
