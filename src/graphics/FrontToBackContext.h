#pragma once

#include "graphics/BitmapContext.h"
#include "graphics/HeldCoverage.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace marlevo {

/// Draws from the top down: each operation comes to lie below those before it.
///
/// Keeps what they cover until flush(), except where opaque strokes hide it: where these lie in
/// many layers over each other, the lower ones cost little. The pixels get the bytes that the
/// operations give in reverse order on the other context. To be used once.
class FrontToBackContext final : public GraphicsContext {
public:
    /// Draws on what `target` draws on and in its frame, which must stay as it is until flush().
    explicit FrontToBackContext(BitmapContext& target) : target_(target), held_(target.area()) {}

    /// Whether nothing that comes now can be seen in this part of the area, as far as it is known.
    bool hides(const IntRect& part) const { return held_.covered.isOccluded(part); }
    bool hidesAll() const { return held_.covered.isOccluded(); }

    /// The share of the area's pixels where something that comes now may be seen.
    double visibleShare() const { return held_.covered.visibleShare(); }

    /// Whether it holds so much that flush() should come now.
    bool isFull() const {
        return held_.blocks.size() >= maxHeldBlocks || heldElements_ >= maxHeldElements;
    }

    /// Blends all that was drawn over the pixels, on which what lies below must be drawn by now.
    void flush();

    void saveState() override { target_.saveState(); }
    void restoreState() override { target_.restoreState(); }
    void scale(double x, double y) override { target_.scale(x, y); }
    void setAlpha(double alpha) override { target_.setAlpha(alpha); }
    void fillRect(const Rect& rect, const Color& color) override;
    void fillPath(const Path& path, const Color& color) override;
    void strokePath(const Path& path, const Color& color, double lineWidth) override;
    void drawImage(const RasterImage& image, const Rect& rect) override;

private:
    static constexpr std::size_t maxHeldBlocks = std::size_t{1} << 18;
    static constexpr std::size_t maxHeldElements = std::size_t{1} << 16;  // of paths

    struct Operation {
        PackedColor color;
        std::size_t blocks = 0;        ///< how many of the held ones are of this operation
        std::function<void()> draw{};  ///< what is drawn as a whole when its turn comes
    };

    template <typename Draw>
    void defer(Draw draw);

    BitmapContext& target_;
    HeldCoverage held_;
    std::vector<Operation> operations_;
    std::size_t heldElements_ = 0;
};

}  // namespace marlevo
