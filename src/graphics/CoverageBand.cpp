#include "graphics/CoverageBand.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace marlevo {

namespace {

constexpr std::int32_t subpixels = CoverageBand::subpixels;
constexpr int subpixelBits = CoverageBand::subpixelBits;

/// Cells are looked after in blocks of this many.
constexpr int blockBits = 4;
constexpr std::size_t blockWidth = 1U << blockBits;
constexpr std::size_t wordBits = 64;

/// The running sum where a pixel is covered fully: cover 256 times twice the width 256.
constexpr std::int32_t fullSum = 2 * subpixels * subpixels;

/// Fully covered gaps between blocks are blended without their coverage from this length on.
constexpr std::size_t shortestSolidRun = 32;

/// Slopes carry this many bits behind the point: a slope times a length within ±2³¹ stays in
/// 64 bits.
constexpr int slopeBits = 30;

std::int64_t slopeOf(std::int32_t rise, std::int32_t run) {
    return static_cast<std::int64_t>(double(rise) * double(std::int64_t{1} << slopeBits) /
                                     double(run));
}

std::int32_t along(std::int32_t start, std::int64_t slope, std::int32_t distance) {
    constexpr std::int64_t half = std::int64_t{1} << (slopeBits - 1);
    return start + static_cast<std::int32_t>((slope * distance + half) >> slopeBits);
}

/// Sums wrap where an outline winds more than 16,000 times around a pixel.
void addWrapping(std::int32_t& sum, std::int32_t term) {
    sum = static_cast<std::int32_t>(static_cast<std::uint32_t>(sum) +
                                    static_cast<std::uint32_t>(term));
}

std::uint8_t coverageOf(std::int32_t sum) {
    const std::uint32_t bits = static_cast<std::uint32_t>(sum);
    const std::uint32_t magnitude = std::min<std::uint32_t>(sum < 0 ? 0U - bits : bits, fullSum);
    return static_cast<std::uint8_t>((magnitude * 255 + fullSum / 2) / fullSum);
}

/// Turns `count` differences into coverage, clears them, and moves `running` to their end.
void integrate(std::int32_t* cells, std::size_t count, std::int32_t& running,
               std::uint8_t* coverage) {
    for (std::size_t i = 0; i < count; ++i) {
        addWrapping(running, cells[i]);
        coverage[i] = coverageOf(running);
        cells[i] = 0;
    }
}

}  // namespace

void CoverageBand::reset(const IntRect& area) {
    area_ = area;
    // One cell more than columns: an edge in the last column writes the cell behind it.
    const std::size_t blocks = (static_cast<std::size_t>(area.width()) + blockWidth) / blockWidth;
    const auto rows = static_cast<std::size_t>(area.height());
    rowCells_ = blocks * blockWidth;
    rowWords_ = (blocks + wordBits - 1) / wordBits;
    // Blending leaves everything 0, so whatever the rows were, what is there can be used again.
    const auto reserve = [](auto& values, std::size_t count) {
        if (values.size() < count) values.resize(count);
    };
    reserve(cells_, rows * rowCells_);
    reserve(leftCover_, rows);
    reserve(dirty_, rows * rowWords_);
    reserve(coverage_, rowCells_);
}

void CoverageBand::add(const OutlineEdge& edge) {
    const std::int32_t bandTop = area_.top * subpixels;
    const std::int32_t bandBottom = area_.bottom * subpixels;
    const std::int32_t top = std::max(edge.y0, bandTop);
    const std::int32_t bottom = std::min(edge.y1, bandBottom);
    if (top >= bottom || std::min(edge.x0, edge.x1) >= area_.right * subpixels) return;

    const std::int32_t dx = edge.x1 - edge.x0;
    const std::int32_t dy = edge.y1 - edge.y0;
    const std::int64_t xPerY = slopeOf(dx, dy);
    const std::int64_t yPerX = dx == 0 ? 0 : slopeOf(dy, dx);
    const auto xAt = [&](std::int32_t y) {
        return y == edge.y1 ? edge.x1 : along(edge.x0, xPerY, y - edge.y0);
    };

    std::int32_t y = top;
    std::int32_t x = xAt(y);
    auto row = static_cast<std::size_t>((top >> subpixelBits) - area_.top);
    while (y < bottom) {
        const std::int32_t nextY = std::min(((y >> subpixelBits) + 1) * subpixels, bottom);
        const std::int32_t nextX = xAt(nextY);
        addWithinRow(row++, x, y, nextX, nextY, edge, yPerX);
        x = nextX;
        y = nextY;
    }
}

void CoverageBand::addWithinRow(std::size_t row, std::int32_t xa, std::int32_t ya, std::int32_t xb,
                                std::int32_t yb, const OutlineEdge& edge, std::int64_t yPerX) {
    const std::int32_t leftEdge = area_.left * subpixels;
    const std::int32_t left = std::min(xa, xb);
    const std::int32_t right = std::max(xa, xb);
    if (right < leftEdge) {
        addWrapping(leftCover_[row], (yb - ya) * edge.winding * 2 * subpixels);
        return;
    }
    std::int32_t column = left >> subpixelBits;
    const std::int32_t lastColumn = right >> subpixelBits;
    if (column == lastColumn) {
        addToCell(row, column, (yb - ya) * edge.winding, xa + xb);
        return;
    }

    // Cell by cell from left to right; on an edge that leans left that is upwards.
    const bool leansRight = xa < xb;
    const auto yAt = [&](std::int32_t x) {
        return std::clamp(along(edge.y0, yPerX, x - edge.x0), ya, yb);
    };
    const std::int32_t winding = leansRight ? edge.winding : -edge.winding;
    std::int32_t x = left;
    std::int32_t y = leansRight ? ya : yb;
    if (column < area_.left) {
        const std::int32_t nextY = yAt(leftEdge);
        addWrapping(leftCover_[row], (nextY - y) * winding * 2 * subpixels);
        column = area_.left;
        x = leftEdge;
        y = nextY;
    }
    for (const std::int32_t end = std::min(lastColumn, area_.right); column < end; ++column) {
        const std::int32_t nextX = (column + 1) * subpixels;
        const std::int32_t nextY = yAt(nextX);
        addToCell(row, column, (nextY - y) * winding, x + nextX);
        x = nextX;
        y = nextY;
    }
    addToCell(row, column, ((leansRight ? yb : ya) - y) * winding, x + right);
}

void CoverageBand::addToCell(std::size_t row, std::int32_t column, std::int32_t cover,
                             std::int32_t twiceX) {
    if (column >= area_.right) return;
    const auto index = static_cast<std::size_t>(column - area_.left);
    const std::int32_t behind = cover * (twiceX - 2 * column * subpixels);
    std::int32_t* cell = &cells_[row * rowCells_ + index];
    addWrapping(cell[0], cover * 2 * subpixels - behind);
    addWrapping(cell[1], behind);
    std::uint64_t* words = &dirty_[row * rowWords_];
    const std::size_t block = index >> blockBits;
    const std::size_t nextBlock = (index + 1) >> blockBits;
    words[block / wordBits] |= std::uint64_t{1} << (block % wordBits);
    words[nextBlock / wordBits] |= std::uint64_t{1} << (nextBlock % wordBits);
}

void CoverageBand::blendInto(const PixelBuffer& target, PackedColor color) {
    const auto rows = static_cast<std::size_t>(area_.height());
    for (std::size_t row = 0; row < rows; ++row)
        blendRow(row, target, color);
}

void CoverageBand::blendRow(std::size_t row, const PixelBuffer& target, PackedColor color) {
    const auto width = static_cast<std::size_t>(area_.width());
    std::uint8_t* const pixels = target.pixel(area_.left, area_.top + static_cast<int>(row));
    std::int32_t* const cells = &cells_[row * rowCells_];
    std::uint64_t* const words = &dirty_[row * rowWords_];

    std::int32_t running = leftCover_[row];
    leftCover_[row] = 0;
    std::size_t done = 0;      // columns whose coverage is known
    std::size_t runStart = 0;  // … and of which these to `done` wait to be blended
    const auto blendWaiting = [&] {
        if (done > runStart)
            blendSpan(pixels + 4 * runStart, &coverage_[runStart], done - runStart, color);
    };
    const auto passGap = [&](std::size_t end) {
        const std::uint8_t coverage = coverageOf(running);
        const std::size_t length = end - done;
        if (coverage == 0 || (coverage == 255 && length >= shortestSolidRun)) {
            blendWaiting();
            if (coverage == 255) blendSolid(pixels + 4 * done, length, color);
            runStart = end;
        } else {
            std::memset(&coverage_[done], coverage, length);
        }
        done = end;
    };

    for (std::size_t word = 0; word < rowWords_; ++word) {
        std::uint64_t bits = words[word];
        words[word] = 0;
        while (bits != 0) {
            const auto first = static_cast<std::size_t>(std::countr_zero(bits));
            const auto count = static_cast<std::size_t>(std::countr_one(bits >> first));
            bits &= count + first == wordBits ? 0 : ~std::uint64_t{0} << (first + count);
            const std::size_t start = (word * wordBits + first) * blockWidth;
            const std::size_t length = count * blockWidth;
            if (start > done) passGap(std::min(start, width));
            integrate(cells + start, length, running, &coverage_[start]);
            done = std::min(start + length, width);
        }
    }
    if (done < width) passGap(width);
    blendWaiting();
}

}  // namespace marlevo
