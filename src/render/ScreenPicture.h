#pragma once

#include "graphics/BitmapContext.h"
#include "model/DrawingDocument.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace marlevo {

/// The document's picture as its window shows it: background, grid, layers and the stroke in
/// progress, at device resolution.
///
/// The finished picture is kept as tiles for one scale, a pure function of the document's values;
/// a change of the layers repaints only what differs. Used on the user-interface thread.
class ScreenPicture {
public:
    /// Tiles beyond the painted area are dropped when all of them take more than this.
    static constexpr std::size_t maxCachedBytes = std::size_t{96} << 20;

    explicit ScreenPicture(Color gridColor = {0.56, 0.56, 0.58, 0.2}) : gridColor_(gridColor) {}

    /// Paints target.area, a part of the device plane whose origin is the canvas's top left corner,
    /// with `scale` device pixels for a canvas pixel. What the area held before is replaced. Counts
    /// as reading all that it shows. A scale that is not a positive number paints nothing.
    void paint(const DrawingDocument& document, double scale, const PixelBuffer& target);

    /// Forgets the tiles; the next paint renders them anew.
    void releaseMemory() { tiles_.clear(); }

private:
    /// The values that the finished picture is made of.
    struct Contents {
        LayerList layers;
        Color background;
        CanvasSize canvasSize;
        double scale = 0;
        bool hasGrid = false;
        PixelOrder order = PixelOrder::bgra;

        static Contents of(const DrawingDocument& document, double scale, PixelOrder order);
    };

    struct Tile {
        std::vector<std::uint8_t> pixels;
        IntRect stale;  ///< the part to be rendered again, in device pixels
    };

    void update(Contents next);
    void invalidate(const IntRect& area);
    void render(const DrawingDocument& document, const PixelBuffer& part) const;
    void dropTilesOutside(const IntRect& area);

    Color gridColor_;
    Contents contents_;
    std::unordered_map<std::uint64_t, Tile> tiles_;  ///< by column and row
};

}  // namespace marlevo
