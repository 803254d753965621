#pragma once

#include "graphics/AccumulationBuffer.h"
#include "graphics/EdgeBuilder.h"
#include "graphics/FlattenedPath.h"
#include "graphics/IncrementalStroke.h"
#include "graphics/TileMap.h"

#include <cstdint>
#include <vector>

namespace marlevo {

/// A growing stroke as filling its outline draws it.
///
/// What the edges of an outline add up to in each cell is a sum of whole numbers, and the outline
/// along a segment depends on its nearest neighbours only. So the sums of the longer line are those
/// of the shorter one without the outline of its last few segments, and with the outline that these
/// have together with what was added.
class IncrementalArea final : public IncrementalStroke {
public:
    explicit IncrementalArea(double deviceWidth) : width_(deviceWidth) {}

    IntRect extend(std::span<const Point> fixed, Point end) override;
    void blendInto(const PixelBuffer& target, PackedColor color) const override;
    std::size_t bytes() const override;

private:
    static constexpr int tileSide = 128;

    struct Tile {
        explicit Tile(const IntRect& place);
        void takeRowSums();

        IntRect area;
        AccumulationBuffer cells;
        std::vector<std::int32_t> rowSums;  ///< what is added to all that lies right of each row
    };

    enum class Change : int { add = 1, remove = -1 };

    /// The first row or column of the tile in which a row or column lies.
    static int rowOfTiles(int y) { return y & -tileSide; }
    static int columnOfTiles(int x) { return x & -tileSide; }

    void changeBy(const FlattenedPath& line, Change change);
    void addEdge(const Edge& edge);
    FlattenedPath lastSegments() const;
    void blendTileRow(const PixelBuffer& target, PackedColor color) const;

    double width_;
    TileMap<Tile, tileSide> tiles_;
    IntRect extent_;             ///< holds all tiles that an edge touches
    std::vector<Point> recent_;  ///< the last fixed points that are not drawn as one
    Point end_;
    FlattenedPath outline_;  ///< kept for its memory
};

}  // namespace marlevo
