#pragma once

#include "graphics/PixelBuffer.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace marlevo {

/// A copy of a cell's pixels. Pixels of one colour are stored as that colour. The buffers of all
/// calls have the area of the copied one.
class CellPixels {
public:
    explicit CellPixels(const PixelBuffer& cell);

    void copyTo(const PixelBuffer& cell) const;

    /// The copied pixels and those of the cell change places.
    void swapWith(const PixelBuffer& cell);

    /// The memory that the copy takes.
    std::size_t bytes() const;

private:
    std::unique_ptr<std::uint8_t[]> bytes_;  ///< row by row; null if all have one colour
    std::uint32_t color_ = 0;
};

}  // namespace marlevo
