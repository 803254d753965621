#include "graphics/AccumulationBuffer.h"
#include "graphics/Bounds.h"
#include "graphics/Edge.h"
#include "graphics/FlattenedPath.h"
#include "graphics/IncrementalStroke.h"
#include "graphics/RasterScratch.h"
#include "graphics/Stroker.h"
#include "graphics/TileMap.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace marlevo {

namespace {

/// A new point changes the outline of at most this many segments.
constexpr std::size_t segmentsAffected = 6;

/// Only the last of these can change pixels.
constexpr std::size_t segmentsChanged = 3;

IntRect areaAround(std::span<const Point> points, double reach) {
    constexpr int limit = static_cast<int>(FlattenedPath::maxCoordinate) * 2;
    return Bounds::of(points).grownBy(reach).pixelsWithin({-limit, -limit, limit, limit});
}

/// A stroke by area. The sums in the cells are integers, and the outline along a segment depends on
/// its nearest neighbours only. So extend() subtracts the outline of the last few segments from the
/// sums and adds the outline that these have together with the new points.
class IncrementalArea final : public IncrementalStroke {
public:
    explicit IncrementalArea(double deviceWidth) : width_(deviceWidth) {}

    IntRect extend(std::span<const Point> fixed, Point end) override;
    void blendInto(const PixelBuffer& target, PackedColor color) const override;
    std::size_t bytes() const override;

private:
    static constexpr int tileSide = 128;

    struct Tile {
        explicit Tile(const IntRect& place) : area(place) { cells.reset(place); }

        IntRect area;
        AccumulationBuffer cells;
    };

    enum class Change : int { add = 1, remove = -1 };

    /// The end of the row of tiles that contains a row.
    static int endOfTileRow(int y) { return (y & -tileSide) + tileSide; }

    void changeBy(const FlattenedPath& line, Change change);
    void addEdge(const Edge& edge);
    FlattenedPath lastSegments() const;

    double width_;
    TileMap<Tile, tileSide> tiles_;
    std::vector<Point> tail_;  ///< the last fixed points that the stroker does not merge
    Point end_;
    FlattenedPath outline_;  ///< kept for its memory
};

IntRect IncrementalArea::extend(std::span<const Point> fixed, Point end) {
    std::vector<Point> affected;
    if (!tail_.empty()) {
        changeBy(lastSegments(), Change::remove);
        affected.push_back(end_);
    }
    const std::size_t known = tail_.size();
    const double merged = mergeDistance(width_);
    for (const Point p : fixed) {
        if (!tail_.empty()) {
            const double dx = p.x - tail_.back().x;
            const double dy = p.y - tail_.back().y;
            if (dx * dx + dy * dy <= merged * merged) continue;
        }
        tail_.push_back(p);
    }
    end_ = end;
    changeBy(lastSegments(), Change::add);

    affected.push_back(end_);
    affected.insert(affected.end(), tail_.begin(), tail_.end());
    const double reach = width_ / 2 + 1;
    const std::size_t unchanged = known > segmentsChanged ? known - segmentsChanged - 1 : 0;
    const auto oldEndAndNew = std::span(affected).first(affected.size() - tail_.size());
    const IntRect changed = areaAround(oldEndAndNew, reach)
                                .unitedWith(areaAround(std::span(tail_).subspan(unchanged), reach));
    if (tail_.size() > segmentsAffected + 1)
        tail_.erase(tail_.begin(), tail_.end() - (segmentsAffected + 1));
    return changed;
}

FlattenedPath IncrementalArea::lastSegments() const {
    FlattenedPath line;
    line.points = tail_;
    line.points.push_back(end_);
    line.contours.push_back({0, line.points.size(), false});
    return line;
}

void IncrementalArea::changeBy(const FlattenedPath& line, Change change) {
    strokeOutline(line, width_, 1, 1, outline_);
    forEachEdge(outline_, [&](Edge edge) {
        edge.winding *= static_cast<int>(change);
        addEdge(edge);
    });
}

/// Adds the edge to the tiles that it crosses.
void IncrementalArea::addEdge(const Edge& edge) {
    constexpr int bits = Edge::subpixelBits;
    const double slope = double(edge.x1 - edge.x0) / double(edge.y1 - edge.y0);
    const auto xAt = [&](int row) {
        return edge.x0 + slope * (std::clamp(row << bits, edge.y0, edge.y1) - edge.y0);
    };
    const int end = ((edge.y1 - 1) >> bits) + 1;
    for (int top = edge.y0 >> bits, bottom = 0; top < end; top = bottom) {
        bottom = std::min(endOfTileRow(top), end);
        const auto [least, most] = std::minmax({xAt(top), xAt(bottom)});
        // A subpixel more on each side covers rounding.
        const IntRect touched{(static_cast<int>(std::floor(least)) - 1) >> bits, top,
                              ((static_cast<int>(std::ceil(most)) + 1) >> bits) + 1, bottom};
        tiles_.forEachTile(touched, [&](Tile& tile) { tile.cells.add(edge); });
    }
}

void IncrementalArea::blendInto(const PixelBuffer& target, PackedColor color) const {
    AccumulationBuffer& buffer = RasterScratch::ofThread().accumulation;
    const ResetOnException guard(buffer);
    const IntRect& area = target.area;
    for (int top = area.top, bottom = 0; top < area.bottom; top = bottom) {
        bottom = std::min(endOfTileRow(top), area.bottom);
        buffer.reset({area.left, top, area.right, bottom});
        // Edges left of the target count, too.
        const int left = -static_cast<int>(maxCoordinate) * 2;
        tiles_.forEachKnownTile({left, top, area.right, bottom},
                                [&](const Tile& tile) { buffer.add(tile.cells); });
        buffer.blendInto(target, color);
    }
}

std::size_t IncrementalArea::bytes() const {
    return tiles_.size() * sizeof(std::int32_t) * tileSide * (tileSide + SumRow::cellsPerMark);
}

}  // namespace

std::unique_ptr<IncrementalStroke> IncrementalStroke::makeByArea(double deviceWidth) {
    return std::make_unique<IncrementalArea>(deviceWidth);
}

}  // namespace marlevo
