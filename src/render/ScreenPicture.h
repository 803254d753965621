#pragma once

#include "graphics/Color.h"
#include "graphics/PixelBuffer.h"
#include "graphics/TileMap.h"
#include "model/DrawingDocument.h"
#include "render/StrokeInProgress.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace marlevo {

struct LayerRun;
class StrokesInSight;

/// The document's picture as its window shows it: background, grid, layers and the stroke in
/// progress, at device resolution.
///
/// The finished picture is kept as tiles, a pure function of the document's values; a change
/// repaints only what differs. While only the scale changes, the tiles of other scales are kept
/// too, so that going back to one costs nothing. Areas and pixels lie on a device plane whose
/// origin is the canvas's top left corner. Used on the user-interface thread.
class ScreenPicture {
public:
    /// What all tiles together may take beyond those in sight.
    static constexpr std::size_t maxCachedBytes = std::size_t{96} << 20;

    /// What the grid is drawn in. With another colour than before everything counts as changed.
    void setGridColor(const Color& color);

    /// Follows the document, seen with `scale` device pixels for a canvas pixel, and gives the
    /// areas of what was painted that would be painted otherwise now, each of them once; nothing
    /// when that is everything. Counts as reading all that the picture shows.
    std::optional<std::vector<IntRect>> takeChanges(const DrawingDocument& document, double scale);

    /// Paints the pixels of `target`, which are in the order of the screen's; what they held before
    /// is replaced, and nothing is seen beyond the canvas. Follows the document too, and keeps what
    /// that changes to be taken later. A scale that is not a positive number paints nothing.
    void paint(const DrawingDocument& document, double scale, const PixelBuffer& target);

    /// Renders at once what several paints of parts of `area`, which are to follow, would render
    /// one by one.
    void prepare(const DrawingDocument& document, double scale, const IntRect& area);

    /// Where the tiles take more than maxCachedBytes, drops some: those of other scales, then those
    /// out of sight. What was painted of a dropped tile must be painted again before it is shown.
    void limitMemory(const IntRect& inSight);
    std::size_t cachedBytes() const;

    /// Drops all tiles; everything counts as changed.
    void releaseMemory();

private:
    /// What the finished picture is made of.
    struct Contents {
        LayerList layers;
        Color background;
        CanvasSize canvasSize;
        double scale = 0;
        bool hasGrid = false;

        static Contents of(const DrawingDocument& document, double scale);
        bool hasSameGround(const Contents& other) const;
        IntRect canvasPixels() const;
        Rect canvasRect() const { return {{0, 0}, {canvasSize.width, canvasSize.height}}; }
    };

    struct Tile {
        explicit Tile(const IntRect& place)
            : area(place), stale(place),
              bytes(std::make_unique_for_overwrite<std::uint8_t[]>(tileBytes)) {}

        PixelBuffer pixels() {
            return {bytes.get(), std::ptrdiff_t{tileSide} * 4, area, PixelOrder::bgra};
        }

        IntRect area;
        IntRect stale;    ///< the part that must be painted before it is used; all at first
        IntRect changed;  ///< the part to be reported as looking other than before
        std::unique_ptr<std::uint8_t[]> bytes;
    };

    static constexpr int tileSide = 512;
    static constexpr std::size_t tileBytes = std::size_t{tileSide} * tileSide * 4;

    using Tiles = TileMap<Tile, tileSide>;

    struct OtherScale {
        double scale = 0;
        Tiles tiles;
    };

    void follow(const DrawingDocument& document, double scale);
    void changeScale(double scale);
    void showDifference(const LayerList& after, const DrawingDocument& document);
    void markStale(const IntRect& area);
    void markChanged(const IntRect& area);
    template <typename Paint>
    void paintOver(const IntRect& area, Paint paint);
    void renderStaleTiles(const DrawingDocument& document, const IntRect& area);
    void render(const DrawingDocument& document, const std::vector<PixelBuffer>& stale,
                const IntRect& whole) const;
    void renderBackground(const PixelBuffer& part) const;
    void renderImage(const LayerRun& run, const PixelBuffer& part) const;
    void renderStrokes(const StrokesInSight& strokes, const PixelBuffer& part) const;

    Color gridColor_{0.5, 0.5, 0.5, 0.2};
    Contents contents_;
    Tiles tiles_;
    std::vector<OtherScale> otherScales_;  ///< of the same contents; left longest ago comes first
    StrokeInProgress strokeInProgress_;
    bool isAllChanged_ = true;
};

}  // namespace marlevo
