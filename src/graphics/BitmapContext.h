#pragma once

#include "graphics/Blend.h"
#include "graphics/DeviceFrame.h"
#include "graphics/GraphicsContext.h"
#include "graphics/HeldCoverage.h"
#include "graphics/PixelBuffer.h"

#include <memory>
#include <optional>
#include <span>

namespace marlevo {

/// Draws on pixels that the caller owns.
///
/// The buffer may be any part of the device plane (a band, a tile): each pixel gets the same bytes
/// whatever part is painted, so disjoint parts may be painted by several threads, each with a
/// context of its own. Nothing outside the buffer's area is touched, and work outside is skipped.
class BitmapContext final : public GraphicsContext {
public:
    BitmapContext(PixelBuffer target, DeviceFrame frame);
    ~BitmapContext() override;
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;

    void saveState() override;
    void restoreState() override;
    void scale(double x, double y) override;
    void setAlpha(double alpha) override;
    double alpha() const;

    /// The part of the device plane that is drawn on.
    const IntRect& area() const;

    void fillRect(const Rect& rect, const Color& color) override;
    void fillPath(const Path& path, const Color& color) override;
    void strokePath(const Path& path, const Color& color, double lineWidth) override;
    void drawImage(const RasterImage& image, const Rect& rect) override;

    /// Draws nothing, but holds what strokePath() would blend into pixels that are not covered yet,
    /// and gives the colour for blendHeld(). Nothing for a stroke that is not drawn by distances.
    std::optional<PackedColor> holdStroke(const Path& path, const Color& color, double lineWidth,
                                          HeldCoverage& held);

    /// Blends what was held of one stroke.
    void blendHeld(std::span<const CoverageBlock> blocks, PackedColor color);

private:
    struct Rasterizer;
    std::unique_ptr<Rasterizer> rasterizer_;
};

}  // namespace marlevo
