#include "graphics/OcclusionMask.h"

#include <algorithm>
#include <bit>

namespace marlevo {

namespace {

constexpr int blockWidth = BlockGrid::blockWidth;
constexpr int blockHeight = BlockGrid::blockHeight;

/// A bit for each pixel in the columns from … end − 1 of the row of a block at `left`.
std::uint16_t bitsBetween(int from, int end, int left) {
    const int first = std::clamp(from - left, 0, blockWidth);
    const int last = std::clamp(end - left, first, blockWidth);
    return static_cast<std::uint16_t>((1 << last) - (1 << first));
}

}  // namespace

OcclusionMask::OcclusionMask(const IntRect& area)
    : area_(area), visiblePixels_(area.width() * area.height()) {
    grid_.reset(area);
    visible_.resize(grid_.blockCount());
    for (int strip = 0; strip < grid_.stripCount(); ++strip) {
        grid_.set(strip, 0, grid_.blocksPerStrip() - 1);
        const Bits inRow = bitsBetween(area.left, area.right, grid_.left() + strip * blockWidth);
        for (int block = 0; block < grid_.blocksPerStrip(); ++block) {
            const int top = grid_.top() + block * blockHeight;
            Bits& visible = visible_[grid_.indexOf(strip, block)];
            for (int row = 0; row < blockHeight; ++row)
                if (top + row >= area.top && top + row < area.bottom)
                    visible = static_cast<Bits>(visible | inRow << (row * blockWidth));
        }
    }
}

bool OcclusionMask::isOccluded(const IntRect& part) const {
    const IntRect inside = part.intersectedWith(area_);
    if (inside.isEmpty()) return true;
    const int first = grid_.blockAt(inside.top);
    const int last = grid_.blockAt(inside.bottom - 1);
    for (int strip = grid_.stripAt(inside.left); strip <= grid_.stripAt(inside.right - 1); ++strip)
        if (grid_.anySet(strip, first, last)) return false;
    return true;
}

void OcclusionMask::occlude(int left, int top, std::uint32_t bits) {
    if (!isInside(left, top)) return;
    Bits& visible = visible_[indexOf(left, top)];
    const auto hidden = static_cast<Bits>(visible & bits);
    visiblePixels_ -= std::popcount(hidden);
    visible = static_cast<Bits>(visible & ~hidden);
    if (visible == 0) grid_.clear(grid_.stripAt(left), grid_.blockAt(top));
}

}  // namespace marlevo
