#include "graphics/OcclusionMask.h"

#include <algorithm>
#include <bit>

namespace marlevo {

namespace {

constexpr int blockWidth = DistanceField::blockWidth;
constexpr int blockHeight = DistanceField::blockHeight;

/// A bit for each pixel of a block's row at `left` that lies in the columns from … end − 1.
std::uint16_t bitsBetween(int from, int end, int left) {
    const int first = std::clamp(from - left, 0, blockWidth);
    const int last = std::clamp(end - left, first, blockWidth);
    return static_cast<std::uint16_t>((1 << last) - (1 << first));
}

}  // namespace

OcclusionMask::OcclusionMask(const IntRect& area)
    : area_(area), left_(area.left & -blockWidth), top_(area.top & -blockHeight),
      stripCount_((area.right - left_ + blockWidth - 1) / blockWidth),
      blocksPerStrip_((area.bottom - top_ + blockHeight - 1) / blockHeight),
      wordCount_((static_cast<std::size_t>(blocksPerStrip_) + 63) / 64),
      openPixels_(area.width() * area.height()),
      open_(static_cast<std::size_t>(stripCount_) * blocksPerStrip_),
      openBlocks_(static_cast<std::size_t>(stripCount_) * wordCount_) {
    for (int strip = 0; strip < stripCount_; ++strip) {
        const Bits inRow = bitsBetween(area.left, area.right, left_ + strip * blockWidth);
        for (int block = 0; block < blocksPerStrip_; ++block) {
            const int top = top_ + block * blockHeight;
            Bits open = 0;
            for (int row = 0; row < blockHeight; ++row)
                if (top + row >= area.top && top + row < area.bottom)
                    open = static_cast<Bits>(open | inRow << (row * blockWidth));
            open_[indexOf(strip, block)] = open;
            openBlocks_[wordOf(strip, block)] |= std::uint64_t{1} << (block % 64);
        }
    }
}

bool OcclusionMask::isOccluded(const IntRect& part) const {
    const IntRect seen = part.intersectedWith(area_);
    if (seen.isEmpty()) return true;
    const int firstBlock = (seen.top - top_) / blockHeight;
    const int lastBlock = (seen.bottom - 1 - top_) / blockHeight;
    for (int strip = (seen.left - left_) / blockWidth;
         strip <= (seen.right - 1 - left_) / blockWidth; ++strip) {
        for (int block = firstBlock; block <= lastBlock; block = (block / 64 + 1) * 64) {
            const int last = std::min(lastBlock, block / 64 * 64 + 63);
            const std::uint64_t asked =
                (~std::uint64_t{0} << (block % 64)) & (~std::uint64_t{0} >> (63 - last % 64));
            if ((openBlocks_[wordOf(strip, block)] & asked) != 0) return false;
        }
    }
    return true;
}

void OcclusionMask::occlude(int left, int top, std::uint32_t bits) {
    if (!isInside(left, top)) return;
    const int strip = (left - left_) / blockWidth;
    const int block = (top - top_) / blockHeight;
    Bits& open = open_[indexOf(strip, block)];
    const auto covered = static_cast<Bits>(open & bits);
    openPixels_ -= std::popcount(covered);
    open = static_cast<Bits>(open & ~covered);
    if (open == 0) openBlocks_[wordOf(strip, block)] &= ~(std::uint64_t{1} << (block % 64));
}

}  // namespace marlevo
