#include "graphics/FlattenedPath.h"
#include "graphics/IncrementalStroke.h"
#include "graphics/Rasterizer.h"
#include "graphics/TileMap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

namespace marlevo {

namespace {

FlattenedPath lineThrough(std::span<const Point> points) {
    FlattenedPath path;
    path.points.assign(points.begin(), points.end());
    path.contours.push_back({0, points.size(), false});
    return path;
}

/// A stroke by distance. The coverage of a line is the maximum of that of its pieces, so the fixed
/// part is kept as a mask, and only the last segment is drawn anew.
class IncrementalDistance final : public IncrementalStroke {
public:
    explicit IncrementalDistance(double deviceWidth) : width_(deviceWidth) {}

    IntRect extend(std::span<const Point> fixed, Point end) override;
    void blendInto(const PixelBuffer& target, PackedColor color) const override;
    std::size_t bytes() const override { return tiles_.size() * tileSide * tileSide; }

private:
    static constexpr int tileSide = 128;

    struct Tile {
        explicit Tile(const IntRect& place)
            : area(place), coverage(std::size_t{tileSide} * tileSide) {}

        IntRect area;
        std::vector<std::uint8_t> coverage;
    };

    std::vector<Tile*> tilesAlong(const FlattenedPath& line);

    double width_;
    TileMap<Tile, tileSide> tiles_;  ///< coverage of the fixed part
    FlattenedPath tail_;             ///< from the last fixed point to the end
};

IntRect IncrementalDistance::extend(std::span<const Point> fixed, Point end) {
    const IntRect before = tail_.isEmpty() ? IntRect{} : areaByDistance(tail_, width_);
    std::vector<Point> points;
    if (!tail_.isEmpty()) points.push_back(tail_.points.front());
    points.insert(points.end(), fixed.begin(), fixed.end());
    const FlattenedPath grown = lineThrough(points);
    for (Tile* const tile : tilesAlong(grown))
        strokeByDistance(grown, width_, MaskSink{{tile->coverage.data(), tileSide, tile->area}});

    tail_ = lineThrough(std::array{points.back(), end});
    return before.unitedWith(areaByDistance(grown, width_))
        .unitedWith(areaByDistance(tail_, width_));
}

/// The tiles near a piece of the line: the box of a slanting line is mostly empty.
std::vector<IncrementalDistance::Tile*> IncrementalDistance::tilesAlong(const FlattenedPath& line) {
    std::vector<Tile*> tiles;
    for (std::size_t i = 1; i < line.points.size(); ++i) {
        const Point a = line.points[i - 1];
        const Point b = line.points[i];
        const double length = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
        const int pieces = 1 + static_cast<int>(length / tileSide);
        const auto pointAt = [&](int piece) {
            const double t = double(piece) / pieces;
            return Point{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
        };
        for (int piece = 0; piece < pieces; ++piece) {
            const FlattenedPath part = lineThrough(std::array{pointAt(piece), pointAt(piece + 1)});
            tiles_.forEachTile(areaByDistance(part, width_),
                               [&](Tile& tile) { tiles.push_back(&tile); });
        }
    }
    std::sort(tiles.begin(), tiles.end());
    tiles.erase(std::unique(tiles.begin(), tiles.end()), tiles.end());
    return tiles;
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

}  // namespace

std::unique_ptr<IncrementalStroke> IncrementalStroke::makeByDistance(double deviceWidth) {
    return std::make_unique<IncrementalDistance>(deviceWidth);
}

}  // namespace marlevo
