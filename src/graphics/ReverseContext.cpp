#include "graphics/ReverseContext.h"

#include <span>
#include <utility>

namespace marlevo {

void ReverseContext::finish() {
    std::span<const HeldBlock> rest = held_.blocks;
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
void ReverseContext::hold(Draw draw) {
    operations_.push_back({{}, 0, [this, draw = std::move(draw), alpha = target_.alpha()] {
                               target_.setAlpha(alpha);
                               draw(target_);
                           }});
}

void ReverseContext::fillRect(const Rect& rect, const Color& color) {
    hold([rect, color](BitmapContext& target) { target.fillRect(rect, color); });
}

void ReverseContext::fillPath(const Path& path, const Color& color) {
    heldElements_ += path.elements().size();
    hold([path, color](BitmapContext& target) { target.fillPath(path, color); });
}

void ReverseContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    const std::size_t before = held_.blocks.size();
    if (const auto packed = target_.holdStroke(path, color, lineWidth, held_)) {
        if (held_.blocks.size() > before)
            operations_.push_back({*packed, held_.blocks.size() - before});
    } else {
        heldElements_ += path.elements().size();
        hold([=](BitmapContext& target) { target.strokePath(path, color, lineWidth); });
    }
}

void ReverseContext::drawImage(const RasterImage& image, const Rect& rect) {
    hold([image, rect](BitmapContext& target) { target.drawImage(image, rect); });
}

}  // namespace marlevo
