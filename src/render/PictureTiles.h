#pragma once

#include "graphics/PixelBuffer.h"
#include "graphics/TileMap.h"
#include "render/CellSearch.h"
#include "render/KeptCells.h"
#include "render/PictureDifference.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace marlevo {

/// The pixels of a picture at one scale, painted where they are needed. Pixels that a change
/// replaces are kept with the picture that they show, and found again when that picture returns.
///
/// The cells that a change touches must be painted anew, unless they are found. After an exception
/// each cell has the pixels of the present picture or is still to be painted.
///
/// Areas are device pixels, relative to the canvas's top left corner. Used on one thread.
class PictureTiles {
public:
    /// `canvas` is the area that has pixels, at `scale` device pixels per canvas pixel.
    PictureTiles(double scale, const IntRect& canvas) : scale_(scale), canvas_(canvas) {}

    /// An empty set of the cells that may have been painted.
    CellSet noCells() const;

    /// The first step of a change, after which the difference's cells must be painted anew.
    void invalidate(const PictureDifference& difference) noexcept;

    /// How the cells of changes got their pixels.
    struct Counts {
        std::size_t samePicture = 0;    ///< kept pixels of the same picture
        std::size_t sameInCell = 0;     ///< those of a picture that does not differ in the cell
        std::size_t drawnOverKept = 0;  ///< those of a picture, and strokes drawn over them
        std::size_t drawnOver = 0;      ///< strokes drawn over the present pixels
        std::size_t repainted = 0;      ///< none of these: painted when they are needed
    };

    struct Change {
        const LayerList& after;
        const PictureDifference& difference;
        ShownPicturePtr before;  ///< for the pixels that are replaced; null if they are not kept
        const CellSet& unlikeBefore;  ///< cells that do not have the pixels of `before`
        bool isPassing;               ///< no pixels of `after` will be kept
        std::function<void(const PixelBuffer&)> drawOver;  ///< draws the difference's strokes
        Counts& counts;                                    ///< added to
    };

    /// The second step: gives those cells the pixels of `after` that can be had without painting
    /// the whole picture. Returns a picture found that is the same as `after`, or null.
    ShownPicturePtr restore(const Change& change);

    /// Paints parts of the picture that do not overlap, all in the area `whole`.
    using PaintParts =
        std::function<void(const std::vector<PixelBuffer>& parts, const IntRect& whole)>;

    /// Paints what is still to be painted of the cells that the area touches.
    void paintMissing(const IntRect& area, const PaintParts& paint);

    /// The same for the cells that the last change has made stale.
    void paintLost(const PaintParts& paint);

    /// Copies painted pixels. The target's area must be inside the canvas.
    void copyTo(const PixelBuffer& target) const;

    /// Reports the difference's cells to the next takeDamage().
    void addDamage(const PictureDifference& difference);
    void takeDamage(std::vector<IntRect>& damage);

    std::size_t tileBytes() const { return tiles_.size() * bytesOfTile; }
    void dropTilesOutside(const IntRect& area) { tiles_.dropTilesOutside(area); }

    std::size_t keptBytes() const;
    /// If the kept pixels take more than this, first thins out each cell's versions, then drops
    /// those not used for the longest time.
    void limitKept(std::size_t mostBytes);

private:
    static constexpr std::size_t bytesOfTile = std::size_t{tileSide} * tileSide * 4;

    struct Tile {
        explicit Tile(const IntRect& place)
            : area(place), bytes(std::make_unique_for_overwrite<std::uint8_t[]>(bytesOfTile)) {}

        PixelBuffer pixels() const {
            return {bytes.get(), std::ptrdiff_t{tileSide} * 4, area, PixelOrder::bgra};
        }

        IntRect area;
        CellMask stale = allCells;  ///< cells that must be painted before they are used
        CellMask former = 0;        ///< cells of the last change that were painted before it
        CellMask damage = 0;        ///< cells that takeDamage() is to report
        std::unique_ptr<std::uint8_t[]> bytes;
        KeptCells kept;
    };

    /// Cells of one tile that get the same strokes drawn over them.
    struct Overlay {
        const PictureDifference* difference;
        CellMask cells;
    };

    using TileCells = std::pair<Tile*, CellMask>;

    PixelBuffer pixelsOf(const Tile& tile, int cell) const;
    void restoreCell(Tile& tile, int cell, const Change& change, CellSearch& search,
                     std::vector<Overlay>& overlays);
    void restoreSame(Tile& tile, int cell, std::size_t version, const Change& change);
    bool canKeep(const Tile& tile, int cell, const Change& change) const;
    void keepFormer(Tile& tile, int cell, const Change& change);
    void copyKept(Tile& tile, int cell, std::size_t version);
    void drawStrokes(Tile& tile, const Overlay& overlay, const Change& change) const;
    void paintCells(const std::vector<TileCells>& stale, const PaintParts& paint) const;
    template <typename Visit>
    void forEachKept(Visit visit) const;

    double scale_;
    IntRect canvas_;
    TileMap<Tile, tileSide> tiles_;
    std::uint64_t uses_ = 0;  ///< of kept pixels
};

}  // namespace marlevo
