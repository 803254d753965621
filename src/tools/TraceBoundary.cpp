#include "tools/TraceBoundary.h"

#include "tools/Chord.h"
#include "tools/SimplifyPath.h"

#include <algorithm>
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

/// See Region::neighbourhood.
constexpr unsigned neighbourhoodCount = 512;

/// The direction of the next step, for each direction back to the previous cell and each
/// neighbourhood.
using DirectionTable = std::array<std::array<std::uint8_t, neighbourhoodCount>, directionCount>;

constexpr DirectionTable makeDirectionTable() {
    DirectionTable table{};
    for (unsigned back = 0; back < directionCount; ++back) {
        for (unsigned cells = 0; cells < neighbourhoodCount; ++cells) {
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

/// Whether the trace changes its direction at a cell.
enum class Course { straight, turn };

/// Traces the outline and calls `visit` with each cell and the course there. Returns the number of
/// cells.
template <class Visitor>
std::size_t walkOutline(const Region& region, Visitor visit) {
    const std::optional<GridPoint> start = startCell(region);
    if (!start) return 0;
    const std::size_t mostCells =
        static_cast<std::size_t>(region.width()) * static_cast<std::size_t>(region.height()) + 1;
    const std::ptrdiff_t rowStride = region.rowStride();

    GridPoint cell = *start;
    std::ptrdiff_t bit = region.bitIndex(cell);
    std::size_t count = 0;
    unsigned direction = noDirection;
    const std::uint8_t* nextDirections = nextDirection[west].data();
    GridPoint offset;
    std::ptrdiff_t bitStep = 0;
    do {
        const unsigned next = nextDirections[region.neighbourhood(bit)];
        visit(cell, next != direction ? Course::turn : Course::straight);
        ++count;
        if (next == noDirection || count >= mostCells) break;
        // A branch instead of a look-up for every step: while the outline is straight, branch
        // prediction saves the wait for the cells.
        if (next != direction) {
            direction = next;
            nextDirections = nextDirection[opposite(direction)].data();
            offset = offsets[direction];
            bitStep = offset.y * rowStride + offset.x;
        }
        cell.x += offset.x;
        cell.y += offset.y;
        bit += bitStep;
    } while (cell != *start);
    return count;
}

}  // namespace

std::vector<GridPoint> traceOutline(const Region& region) {
    std::vector<GridPoint> outline;
    walkOutline(region, [&](GridPoint cell, Course) { outline.push_back(cell); });
    return outline;
}

std::vector<GridPoint> traceBoundary(const Region& region) {
    if (std::max(region.width(), region.height()) > Chord::exactExtent) {
        const std::vector<GridPoint> outline = traceOutline(region);
        return outline.size() < 4 ? outline : simplifyPath(outline, outlineEpsilon);
    }
    // The corners alone simplify to the same vertices (see withoutStraightRuns), and an outline of
    // millions of cells need not be written to memory.
    std::vector<GridPoint> corners;
    std::optional<GridPoint> last;
    const std::size_t count = walkOutline(region, [&](GridPoint cell, Course course) {
        if (course == Course::turn) corners.push_back(cell);
        last = course == Course::turn ? std::nullopt : std::optional(cell);
    });
    if (last) corners.push_back(*last);
    return count < 4 ? traceOutline(region) : simplifyPath(corners, outlineEpsilon);
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
