#include "graphics/IncrementalStroke.h"

#include "graphics/AccumulationBuffer.h"
#include "graphics/Bounds.h"
#include "graphics/Edge.h"
#include "graphics/FlattenedPath.h"
#include "graphics/RasterScratch.h"
#include "graphics/Rasterizer.h"
#include "graphics/RoundPen.h"
#include "graphics/Stroker.h"
#include "graphics/TileMap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

namespace marlevo {

namespace {

constexpr int tileSide = 128;

/// A new point changes the outline of at most this many segments.
constexpr std::size_t segmentsAffected = 6;

/// Only the last of these can change pixels.
constexpr std::size_t segmentsChanged = 3;

IntRect areaAround(std::span<const Point> points, double reach) {
    constexpr int limit = static_cast<int>(FlattenedPath::maxCoordinate) * 2;
    return Bounds::of(points).grownBy(reach).pixelsWithin({-limit, -limit, limit, limit});
}

FlattenedPath lineThrough(std::span<const Point> points) {
    FlattenedPath path;
    path.points.assign(points.begin(), points.end());
    path.contours.push_back({0, points.size(), false});
    return path;
}

/// Sets `found` to the tiles within `reach` of a line, each once. They are found by short pieces,
/// because the box of a slanting line is mostly empty.
template <typename Tile>
void findTilesAlong(std::span<const Point> line, double reach, TileMap<Tile, tileSide>& tiles,
                    std::vector<Tile*>& found) {
    found.clear();
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Point a = line[i - 1];
        const Point b = line[i];
        const double length = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
        const int pieces = 1 + static_cast<int>(length / tileSide);
        const auto pointAt = [&](int piece) {
            const double t = double(piece) / pieces;
            return Point{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
        };
        for (int piece = 0; piece < pieces; ++piece)
            tiles.forEachTile(areaAround(std::array{pointAt(piece), pointAt(piece + 1)}, reach),
                              [&](Tile& tile) { found.push_back(&tile); });
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
}

/// A stroke by distance. The coverage of a line is the maximum of that of its pieces, so the fixed
/// part is kept as a mask, and only the last segment is drawn anew.
class IncrementalDistance final : public IncrementalStroke {
public:
    explicit IncrementalDistance(double deviceWidth)
        : width_(deviceWidth), reach_(RoundPen(deviceWidth).reach) {}

    IntRect extend(std::span<const Point> fixed, Point end) override;
    void blendInto(const PixelBuffer& target, PackedColor color) const override;
    std::size_t bytes() const override { return tiles_.size() * tileSide * tileSide; }

private:
    struct Tile {
        explicit Tile(const IntRect& place)
            : area(place), coverage(std::size_t{tileSide} * tileSide) {}

        IntRect area;
        std::vector<std::uint8_t> coverage;
    };

    double width_;
    double reach_;
    TileMap<Tile, tileSide> tiles_;  ///< coverage of the fixed part
    FlattenedPath tail_;             ///< from the last fixed point to the end
};

IntRect IncrementalDistance::extend(std::span<const Point> fixed, Point end) {
    const IntRect before = areaAround(tail_.points, reach_);
    std::vector<Point> points;
    if (!tail_.isEmpty()) points.push_back(tail_.points.front());
    points.insert(points.end(), fixed.begin(), fixed.end());
    const FlattenedPath grown = lineThrough(points);
    std::vector<Tile*> near;
    findTilesAlong(points, reach_, tiles_, near);
    for (Tile* const tile : near)
        strokeByDistance(grown, width_, MaskSink{{tile->coverage.data(), tileSide, tile->area}});
    tail_ = lineThrough(std::array{points.back(), end});
    points.push_back(end);
    return before.unitedWith(areaAround(points, reach_));
}

void IncrementalDistance::blendInto(const PixelBuffer& target, PackedColor color) const {
    const auto width = static_cast<std::size_t>(target.area.width());
    std::vector<std::uint8_t> coverage(width * static_cast<std::size_t>(target.area.height()));
    const CoverageMask whole{coverage.data(), target.area.width(), target.area};
    tiles_.forEachKnownTile(target.area, [&](const Tile& tile) {
        const IntRect common = tile.area.intersectedWith(target.area);
        for (int y = common.top; y < common.bottom; ++y) {
            const std::size_t at = static_cast<std::size_t>(y - tile.area.top) * tileSide +
                                   (common.left - tile.area.left);
            std::memcpy(whole.pixel(common.left, y), tile.coverage.data() + at,
                        static_cast<std::size_t>(common.width()));
        }
    });
    if (!tail_.isEmpty()) strokeByDistance(tail_, width_, MaskSink{whole});
    for (int y = target.area.top; y < target.area.bottom; ++y)
        blendSpan(target.pixel(target.area.left, y), whole.pixel(target.area.left, y), width,
                  color);
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
    struct Tile {
        explicit Tile(const IntRect& place) : area(place) { cells.reset(place); }

        IntRect area;
        AccumulationBuffer cells;
    };

    enum class Change : int { add = 1, remove = -1 };

    /// The end of the row of tiles that contains a row.
    static int endOfTileRow(int y) { return (y & -tileSide) + tileSide; }

    /// Adds or subtracts the outline of the last segments.
    void changeBy(Change change);

    double width_;
    TileMap<Tile, tileSide> tiles_;
    std::vector<Point> tail_;  ///< the last fixed points that the stroker does not merge
    Point end_;
    FlattenedPath outline_;  ///< kept for its memory
};

IntRect IncrementalArea::extend(std::span<const Point> fixed, Point end) {
    std::vector<Point> affected;
    if (!tail_.empty()) {
        changeBy(Change::remove);
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
    changeBy(Change::add);

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

void IncrementalArea::changeBy(Change change) {
    std::vector<Point> points = tail_;
    points.push_back(end_);
    strokeOutline(lineThrough(points), width_, 1, 1, outline_);
    std::vector<Tile*> near;
    forEachEdge(outline_, [&](Edge edge) {
        edge.winding *= static_cast<int>(change);
        constexpr double subpixel = 1.0 / Edge::subpixels;
        const Point ends[]{{edge.x0 * subpixel, edge.y0 * subpixel},
                           {edge.x1 * subpixel, edge.y1 * subpixel}};
        findTilesAlong(ends, subpixel, tiles_, near);
        for (Tile* const tile : near)
            tile->cells.add(edge);
    });
}

void IncrementalArea::blendInto(const PixelBuffer& target, PackedColor color) const {
    AccumulationBuffer& buffer = RasterScratch::ofThread().accumulation;
    const ResetOnException guard(buffer);
    const IntRect& area = target.area;
    for (int top = area.top, bottom = 0; top < area.bottom; top = bottom) {
        bottom = std::min(endOfTileRow(top), area.bottom);
        buffer.reset({area.left, top, area.right, bottom});
        constexpr int left = -(1 << 30);  // edges left of the target count, too
        tiles_.forEachKnownTile({left, top, area.right, bottom},
                                [&](const Tile& tile) { buffer.add(tile.cells); });
        buffer.blendInto(target, color);
    }
}

std::size_t IncrementalArea::bytes() const {
    return tiles_.size() * sizeof(std::int32_t) * tileSide * (tileSide + SumRow::cellsPerMark);
}

}  // namespace

std::unique_ptr<IncrementalStroke> IncrementalStroke::make(double deviceWidth) {
    if (deviceWidth <= maxWidthByDistance)
        return std::make_unique<IncrementalDistance>(deviceWidth);
    return std::make_unique<IncrementalArea>(deviceWidth);
}

}  // namespace marlevo
