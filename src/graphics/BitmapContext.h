#pragma once

#include "graphics/DeviceFrame.h"
#include "graphics/GraphicsContext.h"
#include "graphics/PixelBuffer.h"

#include <vector>

namespace marlevo {

/// Draws on pixels that the caller owns.
///
/// The buffer may be any part of the device plane (a band, a tile): each pixel gets the same bytes
/// whatever part is painted, so that disjoint parts may be painted by several threads, each with
/// its own context. Pixels outside the buffer's area are not touched, and work outside is skipped.
class BitmapContext final : public GraphicsContext {
public:
    BitmapContext(PixelBuffer target, DeviceFrame frame) : target_(target), state_{frame, 1} {}

    void saveState() override { saved_.push_back(state_); }
    void restoreState() override;
    void scale(double x, double y) override;
    void setAlpha(double alpha) override { state_.alpha = alpha; }

    const PixelBuffer& target() const { return target_; }
    /// The part of the device plane that is drawn on.
    const IntRect& area() const { return target_.area; }
    const DeviceFrame& frame() const { return state_.frame; }
    double alpha() const { return state_.alpha; }

    void fillRect(const Rect& rect, const Color& color) override;
    void fillPath(const Path& path, const Color& color) override;
    void strokePath(const Path& path, const Color& color, double lineWidth) override;
    void drawImage(const RasterImage& image, const Rect& rect) override;

private:
    struct State {
        DeviceFrame frame;
        double alpha;
    };

    PixelBuffer target_;
    State state_;
    std::vector<State> saved_;
};

}  // namespace marlevo
