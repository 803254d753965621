#pragma once

#include "graphics/BlockGrid.h"
#include "graphics/IntRect.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace marlevo {

/// The pixels of a rectangle that opaque strokes hide.
class OcclusionMask {
public:
    /// No pixel of `area` is hidden; every pixel outside is.
    explicit OcclusionMask(const IntRect& area);

    /// True if every pixel is hidden.
    bool isOccluded() const { return visiblePixels_ == 0; }

    /// True if every pixel of `part` is hidden. May be false for a hidden part: whole blocks are
    /// tested.
    bool isOccluded(const IntRect& part) const;

    /// The share of the area's pixels that are not hidden, 0 to 1.
    double visibleShare() const {
        return double(visiblePixels_) / std::max(area_.width() * area_.height(), 1);
    }

    /// The visible pixels of the block at a device position, as bits in the order of occlude().
    std::uint32_t visiblePixelsOf(int left, int top) const {
        return isInside(left, top) ? visible_[indexOf(left, top)] : 0U;
    }

    /// True if a pixel is visible in `count` consecutive blocks of a strip, of which the topmost is
    /// at a device position within the area.
    bool anyVisible(int left, int top, int count) const {
        const int first = grid_.blockAt(top);
        return grid_.anySet(grid_.stripAt(left), first,
                            std::min(first + count, grid_.blocksPerStrip()) - 1);
    }

    /// Hides the pixels of the block at a device position whose bits are set: the lowest bit is the
    /// block's first pixel, row after row. Blocks outside the area are ignored.
    void occlude(int left, int top, std::uint32_t bits);

private:
    using Bits = std::uint16_t;
    static_assert(BlockGrid::blockPixels == 16);

    bool isInside(int left, int top) const {
        return left >= grid_.left() && top >= grid_.top() && left < area_.right &&
               top < area_.bottom;
    }
    std::size_t indexOf(int left, int top) const {
        return grid_.indexOf(grid_.stripAt(left), grid_.blockAt(top));
    }

    IntRect area_;
    int visiblePixels_;
    BlockGrid grid_;             ///< the bit of a block is set while one of its pixels is visible
    std::vector<Bits> visible_;  ///< the visible pixels of each block
};

}  // namespace marlevo
