#include "graphics/AccumulationBuffer.h"

#include "graphics/AccumulationSweep.h"
#include "graphics/RasterScratch.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace marlevo {

namespace {

/// Number of fractional bits of a slope. The product with a length within ±2³¹ fits 64 bits.
constexpr int slopeBits = 30;

std::int64_t slopeOf(std::int32_t rise, std::int32_t run) {
    return static_cast<std::int64_t>(double(rise) * double(std::int64_t{1} << slopeBits) /
                                     double(run));
}

std::int32_t along(std::int32_t start, std::int64_t slope, std::int32_t distance) {
    constexpr std::int64_t half = std::int64_t{1} << (slopeBits - 1);
    return start + static_cast<std::int32_t>((slope * distance + half) >> slopeBits);
}

/// Adds without undefined overflow: sums wrap where an outline winds more than 16,000 times around
/// a pixel.
void addWrapping(std::int32_t& sum, std::int32_t term) {
    sum = static_cast<std::int32_t>(static_cast<std::uint32_t>(sum) +
                                    static_cast<std::uint32_t>(term));
}

}  // namespace

/// The points of an edge on the borders of rows and columns. Each is computed from the edge's upper
/// end: computed from the border before, it would depend on the band.
struct AccumulationBuffer::EdgeLine {
    Edge edge;
    std::int64_t xPerY = 0;
    std::int64_t yPerX = 0;

    explicit EdgeLine(const Edge& of) : edge(of) {
        const std::int32_t dx = edge.x1 - edge.x0;
        const std::int32_t dy = edge.y1 - edge.y0;
        xPerY = slopeOf(dx, dy);
        if (dx != 0) yPerX = slopeOf(dy, dx);
    }

    std::int32_t xAt(std::int32_t y) const { return y == edge.y1 ? edge.x1 : xBetweenEnds(y); }
    std::int32_t xBetweenEnds(std::int32_t y) const { return along(edge.x0, xPerY, y - edge.y0); }
    /// Limited to the part of the edge in one row.
    std::int32_t yAt(std::int32_t x, std::int32_t topY, std::int32_t bottomY) const {
        return std::clamp(along(edge.y0, yPerX, x - edge.x0), topY, bottomY);
    }
};

/// The part of an edge in one row, from left to right.
struct AccumulationBuffer::EdgePiece {
    std::int32_t topY;
    std::int32_t bottomY;
    bool leansRight;
    std::int32_t winding;  ///< of the piece from left to right
    std::int32_t left;
    std::int32_t right;
    std::int32_t leftY;
    std::int32_t rightY;
    std::int32_t firstColumn;  ///< counted from the left of the area
    std::int32_t lastColumn;
    std::int32_t enteredAt;  ///< distance of the left end from its cell's left side

    /// From (xa, ya) down to (xb, yb), of an edge with this winding.
    EdgePiece(std::int32_t xa, std::int32_t ya, std::int32_t xb, std::int32_t yb,
              std::int32_t edgeWinding, int areaLeft)
        : topY(ya), bottomY(yb), leansRight(xa < xb),
          winding(leansRight ? edgeWinding : -edgeWinding), left(std::min(xa, xb)),
          right(std::max(xa, xb)), leftY(leansRight ? ya : yb), rightY(leansRight ? yb : ya),
          firstColumn((left >> subpixelBits) - areaLeft),
          lastColumn((right >> subpixelBits) - areaLeft), enteredAt(left & (subpixels - 1)) {}
};

/// The cells and marks of a row.
struct AccumulationBuffer::RowStart {
    std::int32_t* cells;
    std::uint8_t* dirty;

    void markDirty(std::int32_t column) const { dirty[column / cellsPerMark] = dirtyMark; }
};

void AccumulationBuffer::reset(const IntRect& area) {
    area_ = area;
    // An edge in the last column writes to the two cells after it.
    const std::size_t blocks =
        (static_cast<std::size_t>(area.width()) + 1 + cellsPerMark) / cellsPerMark;
    const auto rows = static_cast<std::size_t>(area.height());
    rowCells_ = blocks * cellsPerMark;
    rowMarks_ = (blocks + markGroup - 1) / markGroup * markGroup;
    // Blending sets everything to 0, so that memory can be reused for rows of another length.
    const auto reserve = [](auto& values, std::size_t count) {
        if (values.size() < count) values.resize(count);
    };
    reserve(cells_, rows * rowCells_);
    reserve(leftCover_, rows);
    reserve(dirty_, rows * rowMarks_);
}

void AccumulationBuffer::add(const Edge& edge) {
    const std::int32_t top = std::max(edge.y0, area_.top * subpixels);
    const std::int32_t bottom = std::min(edge.y1, area_.bottom * subpixels);
    if (top >= bottom || std::min(edge.x0, edge.x1) >= area_.right * subpixels) return;

    const EdgeLine line(edge);
    const std::int32_t width = area_.width();
    const std::int32_t bottomX = line.xAt(bottom);
    auto row = static_cast<std::size_t>((top >> subpixelBits) - area_.top);
    std::int32_t rowBottom = ((top >> subpixelBits) + 1) * subpixels;
    std::int32_t y = top;
    std::int32_t x = line.xAt(top);
    for (bool isLastRow = false; !isLastRow; ++row, rowBottom += subpixels) {
        isLastRow = rowBottom >= bottom;
        const std::int32_t nextY = isLastRow ? bottom : rowBottom;
        const std::int32_t nextX = isLastRow ? bottomX : line.xBetweenEnds(rowBottom);
        const EdgePiece piece(x, y, nextX, nextY, edge.winding, area_.left);
        if (piece.firstColumn >= 0 && piece.lastColumn < width &&
            piece.lastColumn - piece.firstColumn <= 1)
            addPair({&cells_[row * rowCells_], &dirty_[row * rowMarks_]}, piece, line);
        else
            addPiece(row, piece, line);
        x = nextX;
        y = nextY;
    }
}

/// Adds a piece that touches at most two cells, both in the area: the most frequent kind. Without
/// branches, because one cell or two cannot be predicted.
inline void AccumulationBuffer::addPair(RowStart row, const EdgePiece& piece,
                                        const EdgeLine& line) {
    const std::int32_t border = piece.left - piece.enteredAt + subpixels;
    const std::int32_t beyond = std::max(piece.right - border, 0);
    const std::int32_t atBorder =
        line.yAt(std::min(border, piece.right), piece.topY, piece.bottomY);
    // All bits are set if the piece crosses the border, else none.
    const std::int32_t crossesBorder = -static_cast<std::int32_t>(beyond > 0);
    const std::int32_t second = (piece.rightY - atBorder) & crossesBorder;
    const std::int32_t first = piece.rightY - piece.leftY - second;
    const std::int32_t firstX = piece.enteredAt + piece.right - beyond - (border - subpixels);
    std::int32_t* const cell = row.cells + piece.firstColumn;
    addWrapping(cell[0], first * piece.winding * (2 * subpixels - firstX));
    addWrapping(cell[1], piece.winding * (first * firstX + second * (2 * subpixels - beyond)));
    addWrapping(cell[2], second * piece.winding * beyond);
    row.markDirty(piece.firstColumn);
    row.markDirty(piece.lastColumn + 1);
}

/// Adds any piece, cell by cell from left to right.
///
/// Parameters by value: the compiler keeps them in registers (measured).
void AccumulationBuffer::addPiece(std::size_t row, EdgePiece piece, EdgeLine line) {
    const std::int32_t width = area_.width();
    if (piece.lastColumn < 0) {
        addWrapping(leftCover_[row], (piece.rightY - piece.leftY) * piece.winding * 2 * subpixels);
        return;
    }
    if (piece.firstColumn >= width) return;

    std::int32_t* const cells = &cells_[row * rowCells_];
    const RowStart start{cells, &dirty_[row * rowMarks_]};
    std::int32_t column = piece.firstColumn;
    std::int32_t y = piece.leftY;
    std::int32_t enteredAt = piece.enteredAt;
    if (column < 0) {
        const std::int32_t nextY = line.yAt(area_.left * subpixels, piece.topY, piece.bottomY);
        addWrapping(leftCover_[row], (nextY - y) * piece.winding * 2 * subpixels);
        column = 0;
        enteredAt = 0;
        y = nextY;
    }
    const auto addToCell = [&](std::int32_t nextY, std::int32_t leftAt) {
        const std::int32_t cover = (nextY - y) * piece.winding;
        addWrapping(cells[column], cover * (2 * subpixels - enteredAt - leftAt));
        addWrapping(cells[column + 1], cover * (enteredAt + leftAt));
        enteredAt = 0;
        y = nextY;
    };
    for (std::int32_t block = column; block <= std::min(piece.lastColumn, width - 1);
         block += cellsPerMark)
        start.markDirty(block);
    start.markDirty(std::min(piece.lastColumn, width - 1) + 1);
    std::int32_t nextX = (column + area_.left + 1) * subpixels;
    for (const std::int32_t end = std::min(piece.lastColumn, width); column < end; ++column) {
        addToCell(line.yAt(nextX, piece.topY, piece.bottomY), subpixels);
        nextX += subpixels;
    }
    if (column < width) addToCell(piece.rightY, piece.right & (subpixels - 1));
}

void AccumulationBuffer::blendInto(const PixelBuffer& target, PackedColor color) {
    const auto width = static_cast<std::size_t>(area_.width());
    for (int y = area_.top; y < area_.bottom; ++y) {
        const auto row = static_cast<std::size_t>(y - area_.top);
        sweepRow({&cells_[row * rowCells_], &dirty_[row * rowMarks_], rowMarks_,
                  std::exchange(leftCover_[row], 0)},
                 target.pixel(area_.left, y), width, color);
    }
}

std::int32_t AccumulationBuffer::rowSum(int y) const { return sumOfCells(y, rowCells_); }

std::int32_t AccumulationBuffer::sumOfCells(int y, std::size_t count) const {
    const std::int32_t* const cells = &cells_[static_cast<std::size_t>(y - area_.top) * rowCells_];
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += static_cast<std::uint32_t>(cells[i]);
    return static_cast<std::int32_t>(sum);
}

void AccumulationBuffer::blendRow(int y, int left, int right, std::int32_t before,
                                  std::uint8_t* pixels, PackedColor color) const {
    // A copy, because the sweep clears its row.
    auto& [copy, dirty] = RasterScratch::ofThread().row;
    const std::size_t first = static_cast<std::size_t>(left - area_.left);
    const std::size_t count = static_cast<std::size_t>(right - left);
    const std::size_t blocks = (count + cellsPerMark) / cellsPerMark;  // and one cell more
    const std::size_t marks = (blocks + markGroup - 1) / markGroup * markGroup;
    if (copy.size() < blocks * cellsPerMark) copy.resize(blocks * cellsPerMark);
    if (dirty.size() < marks) dirty.resize(marks);
    const std::int32_t* const cells = &cells_[static_cast<std::size_t>(y - area_.top) * rowCells_];
    std::copy_n(cells + first, count, copy.begin());
    std::fill_n(dirty.begin(), blocks, dirtyMark);
    addWrapping(before, sumOfCells(y, first));
    sweepRow({copy.data(), dirty.data(), marks, before}, pixels, count, color);
}

}  // namespace marlevo
