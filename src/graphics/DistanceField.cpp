#include "graphics/DistanceField.h"

#include <algorithm>

namespace marlevo {

namespace {

// `step` is a power of two.
int roundedDown(int value, int step) { return value & -step; }

}  // namespace

void DistanceField::reset(const IntRect& area) {
    left_ = roundedDown(area.left, blockWidth);
    top_ = roundedDown(area.top, blockHeight);
    stripCount_ = (area.right - left_ + blockWidth - 1) / blockWidth;
    blocksPerStrip_ = (area.bottom - top_ + blockHeight - 1) / blockHeight;
    wordCount_ = (blocksPerStrip_ + 63) / 64;

    const std::size_t blocks = static_cast<std::size_t>(stripCount_) * blocksPerStrip_;
    if (blocks_.size() < blocks) {
        Block allFar{};
        std::fill(std::begin(allFar.squares), std::end(allFar.squares), far);
        blocks_.resize(blocks, allFar);
    }
    const std::size_t words = static_cast<std::size_t>(stripCount_) * wordCount_;
    if (touched_.size() < words) touched_.resize(words, 0);
}

}  // namespace marlevo
