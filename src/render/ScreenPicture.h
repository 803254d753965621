#pragma once

#include "graphics/Color.h"
#include "graphics/PixelBuffer.h"
#include "render/PictureTiles.h"
#include "render/Scene.h"
#include "render/StrokeInProgress.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace marlevo {

class ImageCache;

/// A drawing as its window shows it: background, grid, layers and the stroke in progress, at device
/// resolution.
///
/// The finished picture is kept as tiles, which depend on the scene's values only; a change
/// repaints what differs, except for pixels that were shown before and are still kept. While only
/// the scale changes, or the grid or the background, the tiles from before are kept too, so that
/// returning to them costs nothing. Areas and pixels are device pixels, relative to the canvas's
/// top left corner. Used on the user-interface thread.
class ScreenPicture {
public:
    /// Bounds on the memory that is kept: for tiles in addition to the visible ones, and for the
    /// pixels of earlier pictures.
    struct Limits {
        std::size_t tileBytes = std::size_t{96} << 20;
        std::size_t keptBytes = std::size_t{64} << 20;
    };

    /// The cache must outlive this object.
    explicit ScreenPicture(ImageCache& images) : ScreenPicture(images, Limits()) {}
    ScreenPicture(ImageCache& images, const Limits& limits) : images_(images), limits_(limits) {}

    /// The colour of the grid's lines. A new one counts as a change of everything.
    void setGridColor(const Color& color);

    /// Takes over what is to be shown from now on; the following calls refer to it. A scale that is
    /// not a positive number shows nothing. Drops images from the cache that no visible layer has.
    /// After an exception the next update and paint show the right picture.
    void update(const Scene& scene);

    /// The painted areas that have changed since the last call; nothing if all has changed.
    std::optional<std::vector<IntRect>> takeDamage();

    /// Replaces the pixels of `target`, which are in the screen's order. Pixels outside the canvas
    /// become transparent. Not to be called while the scale shows nothing: leaves `target` as it
    /// is.
    void paint(const PixelBuffer& target);

    /// Renders all of `area` at once, with all cores; the paints of parts of it that follow then
    /// only copy.
    void prepare(const IntRect& area);

    /// While the tiles take more than the bound, drops those that are not shown, then those outside
    /// `visible`. A dropped area must be painted again before it is shown.
    void evictTiles(const IntRect& visible);
    bool hasTilesToEvict() const { return tileBytes() > limits_.tileBytes; }
    std::size_t tileBytes() const;
    std::size_t keptBytes() const;

    /// Drops all tiles; everything counts as changed.
    void releaseMemory();

    /// Of all changes of the layers.
    const PictureTiles::Counts& counts() const { return counts_; }

private:
    /// All that the pixels depend on besides the layers.
    struct View {
        explicit View(const Scene& scene)
            : scale(scene.scale), background(scene.picture.background),
              canvasSize(scene.picture.canvasSize), showsGrid(scene.showsGrid) {}

        bool hasGroundOf(const View& other) const {
            return background == other.background && canvasSize == other.canvasSize &&
                   showsGrid == other.showsGrid;
        }
        friend bool operator==(const View&, const View&) = default;

        double scale;
        Color background;
        CanvasSize canvasSize;
        bool showsGrid;
    };
    struct OtherView {
        View view;
        PictureTiles tiles;
    };

    bool changeLayers(const Scene& next, const Stroke* strokeInProgress);
    void startDrag(const Scene& next);
    void changeView(const Scene& next);
    PictureTiles::PaintParts scenePainting();
    CellSet cellsUnlikeLasting(const CellSet& none) const;

    ImageCache& images_;
    Limits limits_;
    Color gridColor_{0.5, 0.5, 0.5, 0.2};
    Scene shown_;  ///< without the stroke in progress
    StrokeInProgress strokeInProgress_;
    PictureTiles tiles_{0, {}};
    std::vector<OtherView> otherViews_;  ///< of the same layers, the least recently shown first

    /// The last picture shown that is not passing: undo may return to it.
    ShownPicturePtr lasting_ = std::make_shared<ShownPicture>();

    IntRect strokeDamage_;  ///< of the stroke in progress
    bool isAllDamaged_ = true;
    PictureTiles::Counts counts_;
};

}  // namespace marlevo
