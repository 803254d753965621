#pragma once

#include "graphics/IntRect.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace marlevo {

/// For each pixel of a rectangle the squared distance of its centre to the nearest thing seen.
///
/// Pixels lie in blocks of 8 × 2, aligned to the device plane, and blocks in vertical strips: what
/// is narrower than a block meets one or two runs of consecutive memory. A bit for each block says
/// whether it was touched; the pixels of all others are `far`.
class DistanceField {
public:
    static constexpr int blockWidth = 8;
    static constexpr int blockHeight = 2;
    static constexpr std::size_t blockPixels = std::size_t{blockWidth} * blockHeight;
    struct alignas(64) Block {
        float squares[blockPixels];  ///< row after row
    };

    /// Squared; further than any pixel that a pen reaches.
    static constexpr float far = 1e30F;

    /// Covers at least `area`, all of it far. Every block touched before must have been taken.
    void reset(const IntRect& area);

    /// The device position of the first block.
    int left() const { return left_; }
    int top() const { return top_; }
    int stripCount() const { return stripCount_; }
    int blocksPerStrip() const { return blocksPerStrip_; }

    /// The blocks of a strip from top to bottom.
    Block* strip(int index) {
        return blocks_.data() + static_cast<std::size_t>(index) * blocksPerStrip_;
    }

    /// To be called for the blocks first … last of a strip before lowering a distance there.
    void markTouched(int strip, int first, int last) {
        std::uint64_t* const words = touched_.data() + static_cast<std::size_t>(strip) * wordCount_;
        const std::uint64_t fromFirst = ~std::uint64_t{0} << (first % 64);
        const std::uint64_t toLast = ~std::uint64_t{0} >> (63 - last % 64);
        const int firstWord = first / 64;
        const int lastWord = last / 64;
        if (firstWord == lastWord) {
            words[firstWord] |= fromFirst & toLast;
            return;
        }
        words[firstWord] |= fromFirst;
        for (int word = firstWord + 1; word < lastWord; ++word)
            words[word] = ~std::uint64_t{0};
        words[lastWord] |= toLast;
    }

    /// Calls take(block index) for each touched block of a strip and forgets that it was touched;
    /// `take` leaves the block far.
    template <class Take>
    void drain(int strip, Take take) {
        std::uint64_t* const words = touched_.data() + static_cast<std::size_t>(strip) * wordCount_;
        for (int word = 0; word < wordCount_; ++word) {
            for (std::uint64_t bits = words[word]; bits != 0; bits &= bits - 1) {
                take(word * 64 + std::countr_zero(bits));
            }
            words[word] = 0;
        }
    }

private:
    int left_ = 0;
    int top_ = 0;
    int stripCount_ = 0;
    int blocksPerStrip_ = 0;
    int wordCount_ = 0;
    std::vector<Block> blocks_;
    std::vector<std::uint64_t> touched_;
};

}  // namespace marlevo
