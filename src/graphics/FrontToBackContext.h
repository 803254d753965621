#pragma once

#include "graphics/BitmapContext.h"
#include "graphics/CoverageSink.h"
#include "graphics/OcclusionMask.h"

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace marlevo {

/// Draws from front to back: each operation is painted below those before it.
///
/// Records the coverage of strokes until flush(), except where opaque strokes hide it: in a picture
/// of many layers of strokes the lower ones then cost little. The pixels get the bytes that the
/// operations give in reverse order on the target. To be used once.
class FrontToBackContext final : public GraphicsContext {
public:
    /// How much is recorded before isFull() is true.
    struct Limits {
        std::size_t blocks = std::size_t{1} << 18;    ///< of coverage
        std::size_t elements = std::size_t{1} << 16;  ///< of paths that are deferred as a whole
    };

    /// Draws on the pixels and in the frame of `target`, which must not change until flush().
    FrontToBackContext(BitmapContext& target, Limits limits)
        : target_(target), limits_(limits), occlusion_(target.target().area) {}

    /// True if opaque strokes hide all of `part`. May be false for a hidden part: whole blocks are
    /// tested.
    bool hides(const IntRect& part) const { return occlusion_.isOccluded(part); }
    bool hidesAll() const { return occlusion_.isOccluded(); }

    /// The share of the pixels, 0 to 1, that opaque strokes do not hide.
    double visibleShare() const { return occlusion_.visibleShare(); }

    /// True if the caller should draw the remaining operations on the target and then flush().
    bool isFull() const {
        return blocks_.size() >= limits_.blocks || deferredElements_ >= limits_.elements;
    }

    /// Blends the recorded strokes onto the target. The strokes below them must already be painted.
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
    struct Operation {
        PackedColor color;
        std::size_t blockCount = 0;    ///< its share of `blocks_`
        std::function<void()> draw{};  ///< for a deferred operation
    };

    /// Keeps an operation as a whole; `draw` takes the target.
    template <typename Draw>
    void defer(Draw draw) {
        operations_.push_back({{}, 0, [this, draw = std::move(draw), alpha = target_.alpha()] {
                                   target_.setAlpha(alpha);
                                   draw(target_);
                               }});
    }

    BitmapContext& target_;
    Limits limits_;
    OcclusionMask occlusion_;
    std::vector<CoverageBlock> blocks_;
    std::vector<Operation> operations_;
    std::size_t deferredElements_ = 0;
};

}  // namespace marlevo
