#include "graphics/IncrementalArea.h"

#include "graphics/AccumulationSweep.h"
#include "graphics/Bounds.h"
#include "graphics/Stroker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace marlevo {

namespace {

/// More segments than these before the end have no part in what changes there.
constexpr std::size_t segmentsConcerned = 6;

/// Of these, what the change can be seen of.
constexpr std::size_t segmentsChanged = 3;

IntRect areaAround(std::span<const Point> points, double reach) {
    constexpr int limit = static_cast<int>(FlattenedPath::maxCoordinate) * 2;
    return Bounds::of(points).grownBy(reach).pixelsWithin({-limit, -limit, limit, limit});
}

}  // namespace

IncrementalArea::Tile::Tile(const IntRect& place)
    : area(place), rowSums(static_cast<std::size_t>(tileSide)) {
    cells.reset(place);
}

void IncrementalArea::Tile::takeRowSums() {
    for (int row = 0; row < tileSide; ++row)
        rowSums[static_cast<std::size_t>(row)] = cells.rowSum(area.top + row);
}

IntRect IncrementalArea::extend(std::span<const Point> fixed, Point end) {
    std::vector<Point> concerned;
    if (!recent_.empty()) {
        changeBy(lastSegments(), Change::remove);
        concerned.push_back(end_);
    }
    const std::size_t known = recent_.size();
    const double joined = mergeDistance(width_);
    for (const Point p : fixed) {
        if (!recent_.empty()) {
            const double dx = p.x - recent_.back().x;
            const double dy = p.y - recent_.back().y;
            if (dx * dx + dy * dy <= joined * joined) continue;
        }
        recent_.push_back(p);
    }
    end_ = end;
    changeBy(lastSegments(), Change::add);

    concerned.push_back(end_);
    concerned.insert(concerned.end(), recent_.begin(), recent_.end());
    const double reach = width_ / 2 + 1;
    tiles_.forEachKnownTile(areaAround(concerned, reach), [](Tile& tile) { tile.takeRowSums(); });

    const std::size_t unchanged = known > segmentsChanged ? known - segmentsChanged - 1 : 0;
    const auto oldEndAndNew = std::span(concerned).first(concerned.size() - recent_.size());
    const IntRect changed =
        areaAround(oldEndAndNew, reach)
            .unitedWith(areaAround(std::span(recent_).subspan(unchanged), reach));
    if (recent_.size() > segmentsConcerned + 1)
        recent_.erase(recent_.begin(), recent_.end() - (segmentsConcerned + 1));
    return changed;
}

FlattenedPath IncrementalArea::lastSegments() const {
    FlattenedPath line;
    line.points = recent_;
    line.points.push_back(end_);
    line.contours.push_back({0, line.points.size(), false});
    return line;
}

void IncrementalArea::changeBy(const FlattenedPath& line, Change change) {
    strokeOutline(line, width_, 1, 1, outline_);
    EdgeBuilder(outline_).forEach([&](Edge edge) {
        edge.winding *= static_cast<int>(change);
        addEdge(edge);
    });
}

/// Adds the edge to the tiles through which it goes.
void IncrementalArea::addEdge(const Edge& edge) {
    constexpr int bits = AccumulationBuffer::subpixelBits;
    const double slope = double(edge.x1 - edge.x0) / double(edge.y1 - edge.y0);
    const auto xAt = [&](int row) {
        return edge.x0 + slope * (std::clamp(row << bits, edge.y0, edge.y1) - edge.y0);
    };
    const int end = ((edge.y1 - 1) >> bits) + 1;
    for (int top = edge.y0 >> bits, bottom = 0; top < end; top = bottom) {
        bottom = std::min(rowOfTiles(top) + tileSide, end);
        const auto [least, most] = std::minmax({xAt(top), xAt(bottom)});
        // A subpixel more on each side for what is rounded.
        const IntRect touched{(static_cast<int>(std::floor(least)) - 1) >> bits, top,
                              ((static_cast<int>(std::ceil(most)) + 1) >> bits) + 1, bottom};
        extent_ = extent_.unitedWith(touched);
        tiles_.forEachTile(touched, [&](Tile& tile) { tile.cells.add(edge); });
    }
}

void IncrementalArea::blendInto(const PixelBuffer& target, PackedColor color) const {
    const IntRect seen = target.area.intersectedWith(
        {target.area.left, extent_.top, target.area.right, extent_.bottom});
    for (int top = seen.top, bottom = 0; top < seen.bottom; top = bottom) {
        bottom = std::min(rowOfTiles(top) + tileSide, seen.bottom);
        blendTileRow({target.pixel(target.area.left, top),
                      target.stride,
                      {target.area.left, top, target.area.right, bottom},
                      target.order},
                     color);
    }
}

/// For a target that lies within one row of tiles.
void IncrementalArea::blendTileRow(const PixelBuffer& target, PackedColor color) const {
    const IntRect& area = target.area;
    const int firstRow = rowOfTiles(area.top);
    std::array<std::uint32_t, tileSide> sums{};  // of all that lies further left
    const auto pass = [&](const Tile& tile) {
        for (int row = 0; row < tileSide; ++row)
            sums[static_cast<std::size_t>(row)] +=
                static_cast<std::uint32_t>(tile.rowSums[static_cast<std::size_t>(row)]);
    };
    const auto sumAt = [&](int y) {
        return static_cast<std::int32_t>(sums[static_cast<std::size_t>(y - firstRow)]);
    };
    int done = area.left;
    // Between tiles every row goes on as it is.
    const auto passGap = [&](int right) {
        if (right <= done) return;
        for (int y = area.top; y < area.bottom; ++y)
            sweepRow({nullptr, nullptr, 0, sumAt(y)}, target.pixel(done, y),
                     static_cast<std::size_t>(right - done), color);
        done = right;
    };
    const int left = std::min(extent_.left, area.left);
    for (int column = columnOfTiles(left); column < area.right; column += tileSide) {
        tiles_.forEachKnownTile(
            {column, area.top, column + 1, area.top + 1}, [&](const Tile& tile) {
                passGap(std::min(tile.area.left, area.right));
                const int right = std::min(tile.area.right, area.right);
                if (right > done) {
                    for (int y = area.top; y < area.bottom; ++y)
                        tile.cells.blendRow(y, done, right, sumAt(y), target.pixel(done, y), color);
                    done = right;
                }
                pass(tile);
            });
    }
    passGap(area.right);
}

std::size_t IncrementalArea::bytes() const {
    return tiles_.size() * sizeof(std::int32_t) * tileSide * (tileSide + sumBlockWidth);
}

}  // namespace marlevo
