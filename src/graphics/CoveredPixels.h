#pragma once

#include "graphics/DistanceField.h"
#include "graphics/IntRect.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace marlevo {

/// A set of pixels of a rectangle: those of which nothing that lies below can be seen.
///
/// Pixels lie in blocks like those of a DistanceField, with a bit for each.
class CoveredPixels {
public:
    /// None of the pixels in `area`; those outside count as covered.
    explicit CoveredPixels(const IntRect& area);

    bool containsAll(const IntRect& part) const;
    bool containsAll() const { return openPixels_ == 0; }

    /// How many of the area's pixels are not covered.
    int openPixels() const { return openPixels_; }

    /// Whether a pixel of the block at a device position is not covered.
    bool isOpen(int left, int top) const;

    /// Adds those pixels of the block at a device position whose bits are set: the lowest bit
    /// stands for the block's first pixel, row after row. Blocks outside the area are no matter.
    void addBlock(int left, int top, std::uint32_t bits);

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
