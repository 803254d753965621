#pragma once

#include "graphics/DistanceField.h"
#include "graphics/IntRect.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace marlevo {

/// A set of pixels of a rectangle: those of which nothing that lies below can be seen.
///
/// Pixels lie in blocks like those of a DistanceField, with a bit for each.
class OcclusionMask {
public:
    /// None of the pixels in `area`; those outside count as covered.
    explicit OcclusionMask(const IntRect& area);

    /// Looks at whole blocks: false if one that the part touches has a pixel that is not covered.
    bool isOccluded(const IntRect& part) const;
    bool isOccluded() const { return openPixels_ == 0; }

    /// The share of the area's pixels that are not covered.
    double visibleShare() const {
        return double(openPixels_) / std::max(area_.width() * area_.height(), 1);
    }

    /// Which pixels of the block at a device position are not covered, in the order of occlude().
    std::uint32_t visiblePixelsOf(int left, int top) const {
        return isInside(left, top) ? open_[indexOf((left - left_) / DistanceField::blockWidth,
                                                   (top - top_) / DistanceField::blockHeight)]
                                   : 0U;
    }

    /// Whether any of `count` blocks below each other, the uppermost at a device position within
    /// the area, has a pixel that is not covered.
    bool anyVisible(int left, int top, int count) const {
        const std::uint64_t* const words =
            openBlocks_.data() + wordOf((left - left_) / DistanceField::blockWidth, 0);
        const int first = (top - top_) / DistanceField::blockHeight;
        const int end = first + count;
        for (int block = first; block < end; block = (block / 64 + 1) * 64) {
            const std::uint64_t fromBlock = words[block / 64] >> (block % 64);
            const int inWord = std::min(end - block, 64 - block % 64);
            if ((fromBlock & (~std::uint64_t{0} >> (64 - inWord))) != 0) return true;
        }
        return false;
    }

    /// Adds those pixels of the block at a device position whose bits are set: the lowest bit
    /// stands for the block's first pixel, row after row. Blocks outside the area are no matter.
    void occlude(int left, int top, std::uint32_t bits);

private:
    using Bits = std::uint16_t;
    static_assert(DistanceField::blockPixels == 16);

    bool isInside(int left, int top) const {
        return left >= left_ && top >= top_ && left < area_.right && top < area_.bottom;
    }
    std::size_t indexOf(int strip, int block) const {
        return static_cast<std::size_t>(strip) * blocksPerStrip_ + block;
    }
    std::size_t wordOf(int strip, int block) const {
        return static_cast<std::size_t>(strip) * wordCount_ + static_cast<std::size_t>(block) / 64;
    }

    IntRect area_;
    int left_;
    int top_;
    int stripCount_;
    int blocksPerStrip_;
    std::size_t wordCount_;
    int openPixels_;
    std::vector<Bits> open_;                 ///< of each block; strip after strip
    std::vector<std::uint64_t> openBlocks_;  ///< a bit for each block that is not wholly covered
};

}  // namespace marlevo
