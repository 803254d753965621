#include "graphics/CoveredPixels.h"

#include <algorithm>
#include <bit>

namespace marlevo {

namespace {

constexpr int blockWidth = DistanceField::blockWidth;
constexpr int blockHeight = DistanceField::blockHeight;

}  // namespace

CoveredPixels::CoveredPixels(const IntRect& area)
    : area_(area), left_(area.left & -blockWidth), top_(area.top & -blockHeight),
      stripCount_((area.right - left_ + blockWidth - 1) / blockWidth),
      blocksPerStrip_((area.bottom - top_ + blockHeight - 1) / blockHeight),
      wordCount_((static_cast<std::size_t>(blocksPerStrip_) + 63) / 64),
      openPixels_(area.width() * area.height()),
      open_(static_cast<std::size_t>(stripCount_) * blocksPerStrip_),
      openBlocks_(static_cast<std::size_t>(stripCount_) * wordCount_) {
    for (int strip = 0; strip < stripCount_; ++strip) {
        for (int block = 0; block < blocksPerStrip_; ++block) {
            Bits& open = open_[indexOf(strip, block)];
            for (int i = 0; i < blockWidth * blockHeight; ++i) {
                const int x = left_ + strip * blockWidth + i % blockWidth;
                const int y = top_ + block * blockHeight + i / blockWidth;
                const bool isInside =
                    x >= area.left && x < area.right && y >= area.top && y < area.bottom;
                open = static_cast<Bits>(open | (isInside ? 1U << i : 0U));
            }
            openBlocks_[wordOf(strip, block)] |= std::uint64_t{1} << (block % 64);
        }
    }
}

bool CoveredPixels::containsAll(const IntRect& part) const {
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

void CoveredPixels::addBlock(int left, int top, std::uint32_t bits) {
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
