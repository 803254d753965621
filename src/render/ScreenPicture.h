#pragma once

#include "graphics/Color.h"
#include "graphics/PixelBuffer.h"
#include "graphics/TileMap.h"
#include "render/Scene.h"
#include "render/StrokeInProgress.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace marlevo {

class ImageCache;
struct LayerRun;
class VisibleStrokes;

/// A drawing as its window shows it: background, grid, layers and the stroke in progress, at device
/// resolution.
///
/// The finished picture is kept as tiles, which depend on the scene's values only; a change
/// repaints what differs. While only the scale changes, the tiles of other scales are kept too, so
/// that returning to one costs nothing. Areas and pixels are device pixels, relative to the
/// canvas's top left corner. Used on the user-interface thread.
class ScreenPicture {
public:
    static constexpr std::size_t defaultMaxCachedBytes = std::size_t{96} << 20;

    /// The cache must outlive this object. `maxCachedBytes` bounds the tiles that are kept in
    /// addition to the visible ones.
    explicit ScreenPicture(ImageCache& images, std::size_t maxCachedBytes = defaultMaxCachedBytes)
        : images_(images), maxCachedBytes_(maxCachedBytes) {}

    /// The colour of the grid's lines. A new one counts as a change of everything.
    void setGridColor(const Color& color);

    /// Takes over what is to be shown from now on; the following calls refer to it. A scale that is
    /// not a positive number shows nothing. Drops images from the cache that no visible layer has.
    void update(const Scene& scene);

    /// The painted areas that have changed since the last call, without overlaps; nothing if all
    /// has changed.
    std::optional<std::vector<IntRect>> takeDamage();

    /// Replaces the pixels of `target`, which are in the screen's order. Pixels outside the canvas
    /// become transparent. Not to be called while the scale shows nothing: leaves `target` as it
    /// is.
    void paint(const PixelBuffer& target);

    /// Renders all of `area` at once, with all cores; the paints of parts of it that follow then
    /// only copy.
    void prepare(const IntRect& area);

    /// While the tiles take more than the bound, drops those of other scales, then those outside
    /// `visible`. A dropped area must be painted again before it is shown.
    void evictTiles(const IntRect& visible);
    bool hasTilesToEvict() const { return cachedBytes() > maxCachedBytes_; }
    std::size_t cachedBytes() const;

    /// Drops all tiles; everything counts as changed.
    void releaseMemory();

private:
    struct Tile {
        explicit Tile(const IntRect& place)
            : area(place), stale(place),
              bytes(std::make_unique_for_overwrite<std::uint8_t[]>(tileBytes)) {}

        PixelBuffer pixels() {
            return {bytes.get(), std::ptrdiff_t{tileSide} * 4, area, PixelOrder::bgra};
        }

        IntRect area;
        IntRect stale;   ///< the part that must be painted before it is used; all at first
        IntRect damage;  ///< the part that takeDamage() is to report
        std::unique_ptr<std::uint8_t[]> bytes;
    };

    static constexpr int tileSide = 512;
    static constexpr std::size_t tileBytes = std::size_t{tileSide} * tileSide * 4;

    using Tiles = TileMap<Tile, tileSide>;

    struct OtherScale {
        double scale = 0;
        Tiles tiles;
    };

    IntRect canvasPixels() const;
    Rect canvasRect() const;
    bool hasSameGround(const Scene& next) const;
    void changeScale(double scale);
    void applyDifference(const LayerList& after, const Stroke* strokeInProgress);
    void invalidate(const IntRect& area);
    void addDamage(const IntRect& area);
    template <typename Paint>
    void paintOver(const IntRect& area, Paint paint);
    void renderStaleTiles(const IntRect& area);
    void render(const std::vector<PixelBuffer>& stale, const IntRect& whole) const;
    void renderBackground(const PixelBuffer& part) const;
    void renderImage(const LayerRun& run, const PixelBuffer& part) const;
    void renderStrokes(const VisibleStrokes& strokes, const PixelBuffer& part) const;

    ImageCache& images_;
    std::size_t maxCachedBytes_;
    Color gridColor_{0.5, 0.5, 0.5, 0.2};
    Scene shown_;  ///< without the stroke in progress
    StrokeInProgress strokeInProgress_;
    Tiles tiles_;
    std::vector<OtherScale> otherScales_;  ///< of the same picture, the least recently shown first
    bool isAllDamaged_ = true;
};

}  // namespace marlevo
