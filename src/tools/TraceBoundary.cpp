#include "tools/TraceBoundary.h"

#include "tools/SimplifyPath.h"

#include <bit>
#include <cstdint>
#include <optional>

namespace marlevo {
namespace {

constexpr unsigned directionCount = 8;
constexpr unsigned west = 4;
constexpr unsigned noDirection = directionCount;

/// The neighbours of a cell, anticlockwise from the east.
constexpr std::array<GridPoint, directionCount> offsets{
    {{1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}}};

constexpr unsigned opposite(unsigned direction) {
    return (direction + directionCount / 2) % directionCount;
}

/// A cell and its neighbours as nine bits: three rows of three, the south-western cell lowest.
using Neighbourhood = unsigned;
constexpr unsigned neighbourhoodCount = 512;

/// For each direction back to the previous cell and each neighbourhood, where the trace goes on.
using DirectionTable = std::array<std::array<std::uint8_t, neighbourhoodCount>, directionCount>;

constexpr DirectionTable makeDirectionTable() {
    DirectionTable table{};
    for (unsigned back = 0; back < directionCount; ++back) {
        for (Neighbourhood cells = 0; cells < neighbourhoodCount; ++cells) {
            unsigned next = noDirection;
            for (unsigned turn = directionCount; turn >= 1; --turn) {
                const unsigned direction = (back + turn) % directionCount;
                const GridPoint offset = offsets[direction];
                if (cells >> ((offset.y + 1) * 3 + offset.x + 1) & 1) next = direction;
            }
            table[back][cells] = static_cast<std::uint8_t>(next);
        }
    }
    return table;
}

constexpr DirectionTable nextDirection = makeDirectionTable();

/// The topmost cell of the leftmost column.
std::optional<GridPoint> startCell(const Region& region) {
    std::optional<GridPoint> start;
    for (int y = region.height() - 1; y >= 0; --y) {
        const std::span<const Region::Word> row = region.row(y);
        const int columns = start ? start->x : region.width();
        for (int left = 0; left < columns; left += Region::wordBits) {
            const Region::Word word = row[left / Region::wordBits];
            if (word == 0) continue;
            const int x = left + std::countr_zero(word);
            if (x < columns) start = GridPoint{x, y};
            break;
        }
    }
    return start;
}

}  // namespace

std::vector<GridPoint> traceOutline(const Region& region) {
    std::vector<GridPoint> outline;
    const std::optional<GridPoint> start = startCell(region);
    if (!start) return outline;

    const std::ptrdiff_t rowStride = region.rowStride();
    std::array<std::ptrdiff_t, directionCount> bitSteps{};
    for (unsigned direction = 0; direction < directionCount; ++direction) {
        bitSteps[direction] = offsets[direction].y * rowStride + offsets[direction].x;
    }
    const std::size_t mostCells =
        static_cast<std::size_t>(region.width()) * static_cast<std::size_t>(region.height()) + 1;

    GridPoint cell = *start;
    std::ptrdiff_t bit = region.bitIndex(cell);
    unsigned back = west;
    do {
        outline.push_back(cell);
        const Neighbourhood cells = region.triple(bit - rowStride) | region.triple(bit) << 3 |
                                    region.triple(bit + rowStride) << 6;
        const unsigned direction = nextDirection[back][cells];
        if (direction == noDirection || outline.size() >= mostCells) break;
        cell.x += offsets[direction].x;
        cell.y += offsets[direction].y;
        bit += bitSteps[direction];
        back = opposite(direction);
    } while (cell != *start);
    return outline;
}

std::vector<GridPoint> traceBoundary(const Region& region) {
    std::vector<GridPoint> outline = traceOutline(region);
    if (outline.size() < 4) return outline;
    return simplifyPath(outline, outlineEpsilon);
}

std::array<GridPoint, 5> boundingRectangle(const Region& region) {
    const Region::Bounds bounds = region.bounds().value_or(Region::Bounds{});
    const GridPoint bottomLeft{bounds.minX, bounds.minY};
    return {{bottomLeft,
             {bounds.maxX, bounds.minY},
             {bounds.maxX, bounds.maxY},
             {bounds.minX, bounds.maxY},
             bottomLeft}};
}

}  // namespace marlevo
