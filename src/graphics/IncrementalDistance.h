#pragma once

#include "graphics/FlattenedPath.h"
#include "graphics/IncrementalStroke.h"
#include "graphics/TileMap.h"

#include <cstdint>
#include <vector>

namespace marlevo {

/// A growing stroke as strokeByDistance() draws it. There a pixel's coverage is that of the nearest
/// segment, so the coverage of a line is the greatest one of its pieces.
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
    TileMap<Tile, tileSide> tiles_;  ///< what the fixed part covers
    FlattenedPath tail_;             ///< from the last fixed point to the end
};

}  // namespace marlevo
