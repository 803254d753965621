#pragma once

#include "graphics/Color.h"
#include "graphics/Path.h"
#include "graphics/RasterImage.h"
#include "graphics/Rect.h"

#include <cstdint>
#include <span>

namespace marlevo {

/// A surface to draw on: pixels (BitmapContext) or a page (PdfContext).
///
/// The drawing frame has its origin at the bottom left corner and y growing upwards, one unit a
/// pixel or point, until scale() changes it. Every operation composites source-over, anti-aliased.
/// Coordinates may have any value: shapes that cannot be drawn are left out.
class GraphicsContext {
public:
    virtual ~GraphicsContext() = default;

    /// Saves and restores the global alpha and the frame. A restore without a save does nothing.
    virtual void saveState() = 0;
    virtual void restoreState() = 0;

    /// Scales the frame for everything that follows; pens are scaled with it.
    virtual void scale(double x, double y) = 0;

    /// Sets the global alpha, 0 to 1, which is multiplied into every following operation.
    virtual void setAlpha(double alpha) = 0;

    virtual void fillRect(const Rect& rect, const Color& color) = 0;

    /// Fills the path with the non-zero winding rule; open sub-paths are closed by a straight line.
    virtual void fillPath(const Path& path, const Color& color) = 0;

    /// Draws the path as an outline with round caps and joins, as one operation: where the outline
    /// crosses itself it is not darker. A sub-path of length zero is a dot.
    virtual void strokePath(const Path& path, const Color& color, double lineWidth) = 0;

    /// Draws the whole image stretched into the rectangle, its top row at the rectangle's upper
    /// side.
    virtual void drawImage(const RasterImage& image, const Rect& rect) = 0;

    /// Draws the image that was decoded from an image file. A page may keep the file's bytes in
    /// place of the pixels; a bitmap ignores them.
    virtual void drawImageFile(std::span<const std::uint8_t> /*file*/, const RasterImage& decoded,
                               const Rect& rect) {
        drawImage(decoded, rect);
    }
};

}  // namespace marlevo
