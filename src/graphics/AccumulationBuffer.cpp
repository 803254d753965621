#include "graphics/AccumulationBuffer.h"

#include <algorithm>
#include <utility>

namespace marlevo {

namespace {

constexpr std::int32_t subpixels = Edge::subpixels;

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

/// The row or column of pixels that contains a position in subpixels.
std::int32_t pixelAt(std::int32_t position) { return position >> Edge::subpixelBits; }

/// Adds without undefined overflow: sums wrap where an outline winds more than 16,000 times around
/// a pixel.
void addWrapping(std::int32_t& sum, std::int32_t term) {
    sum = static_cast<std::int32_t>(static_cast<std::uint32_t>(sum) +
                                    static_cast<std::uint32_t>(term));
}

/// The points of an edge on the borders of rows and columns. Each is computed from the edge's upper
/// end: computed from the border before, it would depend on the band.
struct EdgeLine {
    explicit EdgeLine(const Edge& of) : edge(of) {
        // A slope is not used, and its division is spared, within one row or column.
        const std::int32_t dx = edge.x1 - edge.x0;
        const std::int32_t dy = edge.y1 - edge.y0;
        if (pixelAt(edge.y0) != pixelAt(edge.y1 - 1)) xPerY = slopeOf(dx, dy);
        if (pixelAt(edge.x0) != pixelAt(edge.x1)) yPerX = slopeOf(dy, dx);
    }

    std::int32_t xAt(std::int32_t y) const {
        return y == edge.y1 ? edge.x1 : along(edge.x0, xPerY, y - edge.y0);
    }
    std::int32_t yAt(std::int32_t x) const { return along(edge.y0, yPerX, x - edge.x0); }

    Edge edge;
    std::int64_t xPerY = 0;
    std::int64_t yPerX = 0;
};

/// The part of an edge in one row, from left to right.
struct EdgePiece {
    /// From (xa, ya) down to (xb, yb).
    EdgePiece(std::int32_t xa, std::int32_t ya, std::int32_t xb, std::int32_t yb,
              const EdgeLine& of)
        : line(of), top(ya), bottom(yb), winding(xa < xb ? of.edge.winding : -of.edge.winding),
          left(std::min(xa, xb)), right(std::max(xa, xb)), leftY(xa < xb ? ya : yb),
          rightY(xa < xb ? yb : ya) {}

    std::int32_t yAt(std::int32_t x) const { return std::clamp(line.yAt(x), top, bottom); }

    const EdgeLine& line;
    std::int32_t top;
    std::int32_t bottom;
    std::int32_t winding;  ///< of the piece from left to right
    std::int32_t left;
    std::int32_t right;
    std::int32_t leftY;
    std::int32_t rightY;
};

/// Adds a piece that touches at most two cells, both in the area: the most frequent kind. Without
/// branches, because one cell or two cannot be predicted.
inline void addPair(const SumRow& row, const EdgePiece& piece) {
    const std::int32_t column = pixelAt(piece.left);
    const std::int32_t border = (column + 1) * subpixels;
    const std::int32_t beyond = std::max(piece.right - border, 0);
    const std::int32_t borderY = piece.yAt(std::min(border, piece.right));
    // All bits are set if the piece crosses the border, else none.
    const std::int32_t crossesBorder = -static_cast<std::int32_t>(beyond > 0);
    const std::int32_t second = (piece.rightY - borderY) & crossesBorder;
    const std::int32_t first = piece.rightY - piece.leftY - second;
    const std::int32_t firstX = piece.left + piece.right - beyond - 2 * (border - subpixels);
    std::int32_t* const cell = row.cells + column;
    addWrapping(cell[0], first * piece.winding * (2 * subpixels - firstX));
    addWrapping(cell[1], piece.winding * (first * firstX + second * (2 * subpixels - beyond)));
    addWrapping(cell[2], second * piece.winding * beyond);
    row.markDirty(column);
    row.markDirty(pixelAt(piece.right) + 1);
}

/// Adds any piece, cell by cell from left to right.
void addPiece(const SumRow& row, std::int32_t& leftCover, std::int32_t width,
              const EdgePiece& piece) {
    const std::int32_t lastColumn = pixelAt(piece.right);
    std::int32_t x = piece.left;
    std::int32_t y = piece.leftY;
    if (x < 0) {
        const std::int32_t nextY = lastColumn < 0 ? piece.rightY : piece.yAt(0);
        addWrapping(leftCover, (nextY - y) * piece.winding * 2 * subpixels);
        x = 0;
        y = nextY;
    }
    for (std::int32_t column = pixelAt(x); column <= lastColumn && column < width; ++column) {
        const std::int32_t columnX = column * subpixels;
        const bool isLast = column == lastColumn;
        const std::int32_t nextX = isLast ? piece.right : columnX + subpixels;
        const std::int32_t nextY = isLast ? piece.rightY : piece.yAt(nextX);
        const std::int32_t cover = (nextY - y) * piece.winding;
        const std::int32_t positions = x + nextX - 2 * columnX;
        addWrapping(row.cells[column], cover * (2 * subpixels - positions));
        addWrapping(row.cells[column + 1], cover * positions);
        row.markDirty(column);
        row.markDirty(column + 1);
        x = nextX;
        y = nextY;
    }
}

}  // namespace

inline SumRow AccumulationBuffer::row(std::size_t index) {
    const std::size_t mark = index * marksPerRow_;
    return {&cells_[mark * SumRow::cellsPerMark], &marks_[mark], marksPerRow_, leftCover_[index]};
}

void AccumulationBuffer::reset(const IntRect& area) {
    area_ = area;
    // An edge in the last column writes to the two cells after it.
    marksPerRow_ = (static_cast<std::size_t>(area.width()) + 1) / SumRow::cellsPerMark + 1;
    const auto rows = static_cast<std::size_t>(area.height());
    // Blending sets everything to 0, so that memory can be reused for rows of another length.
    const auto reserve = [](auto& values, std::size_t count) {
        if (values.size() < count) values.resize(count);
    };
    reserve(cells_, rows * marksPerRow_ * SumRow::cellsPerMark);
    reserve(leftCover_, rows);
    reserve(marks_, rows * marksPerRow_);
}

void AccumulationBuffer::add(const Edge& edge) {
    const std::int32_t left = area_.left * subpixels;
    const std::int32_t top = area_.top * subpixels;
    const std::int32_t width = area_.width();
    const std::int32_t end = std::min(edge.y1 - top, area_.height() * subpixels);
    std::int32_t y = std::max(edge.y0 - top, 0);
    if (y >= end || std::min(edge.x0, edge.x1) - left >= width * subpixels) return;

    const EdgeLine line(
        {edge.x0 - left, edge.y0 - top, edge.x1 - left, edge.y1 - top, edge.winding});
    std::int32_t x = line.xAt(y);
    while (y < end) {
        const auto index = static_cast<std::size_t>(pixelAt(y));
        const std::int32_t nextY = std::min((pixelAt(y) + 1) * subpixels, end);
        const std::int32_t nextX = line.xAt(nextY);
        const EdgePiece piece(x, y, nextX, nextY, line);
        const std::int32_t first = pixelAt(piece.left);
        const std::int32_t last = pixelAt(piece.right);
        if (first >= 0 && last < width && last - first <= 1)
            addPair(row(index), piece);
        else
            addPiece(row(index), leftCover_[index], width, piece);
        x = nextX;
        y = nextY;
    }
}

void AccumulationBuffer::add(const AccumulationBuffer& other) {
    constexpr int blockCells = SumRow::cellsPerMark;
    const int bottom = std::min(area_.bottom, other.area_.bottom);
    for (int y = std::max(area_.top, other.area_.top); y < bottom; ++y) {
        const auto index = static_cast<std::size_t>(y - area_.top);
        const SumRow to = row(index);
        const std::size_t firstMark =
            static_cast<std::size_t>(y - other.area_.top) * other.marksPerRow_;
        for (std::size_t mark = 0; mark < other.marksPerRow_; ++mark) {
            if (other.marks_[firstMark + mark] == 0) continue;
            const std::int32_t* const sums = &other.cells_[(firstMark + mark) * blockCells];
            const int column = other.area_.left - area_.left + static_cast<int>(mark) * blockCells;
            const int first = std::clamp(-column, 0, blockCells);
            const int end = std::clamp(area_.width() - column, first, blockCells);
            for (int i = 0; i < first; ++i)
                addWrapping(leftCover_[index], sums[i]);
            for (int i = first; i < end; ++i)
                addWrapping(to.cells[column + i], sums[i]);
            if (first == end) continue;
            to.markDirty(column + first);
            to.markDirty(column + end - 1);
        }
    }
}

void AccumulationBuffer::blendInto(const PixelBuffer& target, PackedColor color) {
    for (int y = area_.top; y < area_.bottom; ++y) {
        const auto index = static_cast<std::size_t>(y - area_.top);
        sweepRow(row(index), target.pixel(area_.left, y), static_cast<std::size_t>(area_.width()),
                 color);
        leftCover_[index] = 0;
    }
}

}  // namespace marlevo
