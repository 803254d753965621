#pragma once

#include "graphics/IntRect.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace marlevo {

/// Addresses of the blocks of 8 × 2 pixels that cover a rectangle, and a bit for each.
///
/// Blocks are aligned to the device plane and numbered strip by strip, a strip being a column of
/// blocks from top to bottom: shapes narrower than a block touch one or two runs of consecutive
/// blocks.
class BlockGrid {
public:
    static constexpr int blockWidth = 8;
    static constexpr int blockHeight = 2;
    static constexpr std::size_t blockPixels = std::size_t{blockWidth} * blockHeight;

    /// Covers at least `area`. Every bit must be 0 before and is 0 after.
    void reset(const IntRect& area) {
        left_ = area.left & -blockWidth;
        top_ = area.top & -blockHeight;
        stripCount_ = (area.right - left_ + blockWidth - 1) / blockWidth;
        blocksPerStrip_ = (area.bottom - top_ + blockHeight - 1) / blockHeight;
        wordsPerStrip_ = (blocksPerStrip_ + 63) / 64;
        const std::size_t words = static_cast<std::size_t>(stripCount_) * wordsPerStrip_;
        if (bits_.size() < words) bits_.resize(words, 0);
    }

    /// The device position of the first block.
    int left() const { return left_; }
    int top() const { return top_; }
    int stripCount() const { return stripCount_; }
    int blocksPerStrip() const { return blocksPerStrip_; }
    std::size_t blockCount() const { return indexOf(stripCount_, 0); }

    /// The number of a block, counted over all strips.
    std::size_t indexOf(int strip, int block) const {
        return static_cast<std::size_t>(strip) * blocksPerStrip_ + block;
    }
    /// The strip or the block that contains a device position in the grid.
    int stripAt(int x) const { return (x - left_) / blockWidth; }
    int blockAt(int y) const { return (y - top_) / blockHeight; }

    /// Sets the bits of the blocks first … last of a strip.
    void set(int strip, int first, int last) {
        forEachWord(wordsOf(strip), first, last,
                    [](std::uint64_t& word, std::uint64_t mask) { word |= mask; });
    }

    void clear(int strip, int block) {
        wordsOf(strip)[block / 64] &= ~(std::uint64_t{1} << (block % 64));
    }

    /// True if the bit of one of the blocks first … last of a strip is set.
    bool anySet(int strip, int first, int last) const {
        std::uint64_t found = 0;
        forEachWord(wordsOf(strip), first, last,
                    [&](std::uint64_t word, std::uint64_t mask) { found |= word & mask; });
        return found != 0;
    }

    /// The bits of the 64 blocks of a strip from number `first` on, a multiple of 64, from the
    /// lowest bit up. Clears them.
    std::uint64_t takeBits(int strip, int first) {
        return std::exchange(wordsOf(strip)[first / 64], 0);
    }

private:
    std::uint64_t* wordsOf(int strip) {
        return bits_.data() + static_cast<std::size_t>(strip) * wordsPerStrip_;
    }
    const std::uint64_t* wordsOf(int strip) const {
        return bits_.data() + static_cast<std::size_t>(strip) * wordsPerStrip_;
    }

    /// Calls visit(word, mask) for each word of the bits first … last; the mask selects these bits.
    template <class Word, class Visit>
    static void forEachWord(Word* words, int first, int last, Visit visit) {
        std::uint64_t mask = ~std::uint64_t{0} << (first % 64);
        int word = first / 64;
        for (; word < last / 64; ++word) {
            visit(words[word], mask);
            mask = ~std::uint64_t{0};
        }
        visit(words[word], mask & (~std::uint64_t{0} >> (63 - last % 64)));
    }

    int left_ = 0;
    int top_ = 0;
    int stripCount_ = 0;
    int blocksPerStrip_ = 0;
    int wordsPerStrip_ = 0;
    std::vector<std::uint64_t> bits_;
};

}  // namespace marlevo
