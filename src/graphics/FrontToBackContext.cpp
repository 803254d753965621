#include "graphics/FrontToBackContext.h"

#include <span>
#include <utility>

namespace marlevo {

void FrontToBackContext::flush() {
    std::span<const CoverageBlock> rest = held_.blocks;
    target_.saveState();
    for (; !operations_.empty(); operations_.pop_back()) {
        const Operation& lowest = operations_.back();
        if (lowest.draw) {
            lowest.draw();
        } else {
            target_.blendHeld(rest.last(lowest.blocks), lowest.color);
            rest = rest.first(rest.size() - lowest.blocks);
        }
    }
    target_.restoreState();
    held_.blocks.clear();
}

template <typename Draw>
void FrontToBackContext::defer(Draw draw) {
    operations_.push_back({{}, 0, [this, draw = std::move(draw), alpha = target_.alpha()] {
                               target_.setAlpha(alpha);
                               draw(target_);
                           }});
}

void FrontToBackContext::fillRect(const Rect& rect, const Color& color) {
    defer([rect, color](BitmapContext& target) { target.fillRect(rect, color); });
}

void FrontToBackContext::fillPath(const Path& path, const Color& color) {
    heldElements_ += path.elements().size();
    defer([path, color](BitmapContext& target) { target.fillPath(path, color); });
}

void FrontToBackContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    const std::size_t before = held_.blocks.size();
    if (const auto packed = target_.holdStroke(path, color, lineWidth, held_)) {
        if (held_.blocks.size() > before)
            operations_.push_back({*packed, held_.blocks.size() - before});
    } else {
        heldElements_ += path.elements().size();
        defer([=](BitmapContext& target) { target.strokePath(path, color, lineWidth); });
    }
}

void FrontToBackContext::drawImage(const RasterImage& image, const Rect& rect) {
    defer([image, rect](BitmapContext& target) { target.drawImage(image, rect); });
}

}  // namespace marlevo
