#include "render/CellPixels.h"

#include "render/TileCells.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace marlevo {

namespace {

constexpr std::size_t bytesOfCell = std::size_t{cellSide} * cellSide * 4;

std::size_t bytesOfRow(const PixelBuffer& cell) {
    return static_cast<std::size_t>(cell.area.width()) * 4;
}

/// Calls `visit` with the first byte of each row, and with that of the row in the copy.
template <typename Visit>
void forEachRow(const PixelBuffer& cell, std::uint8_t* copy, Visit visit) {
    for (int y = cell.area.top; y < cell.area.bottom; ++y, copy += bytesOfRow(cell))
        visit(cell.pixel(cell.area.left, y), copy);
}

bool hasOneColor(const PixelBuffer& cell) {
    const std::uint8_t* const first = cell.pixel(cell.area.left, cell.area.top);
    const std::size_t size = bytesOfRow(cell);
    // In the first row each pixel equals the next one; the other rows equal the first.
    if (std::memcmp(first, first + 4, size - 4) != 0) return false;
    for (int y = cell.area.top + 1; y < cell.area.bottom; ++y)
        if (std::memcmp(first, cell.pixel(cell.area.left, y), size) != 0) return false;
    return true;
}

void fill(const PixelBuffer& cell, std::uint32_t color) {
    for (int y = cell.area.top; y < cell.area.bottom; ++y)
        for (int x = cell.area.left; x < cell.area.right; ++x)
            std::memcpy(cell.pixel(x, y), &color, sizeof color);
}

}  // namespace

CellPixels::CellPixels(const PixelBuffer& cell) {
    if (hasOneColor(cell)) {
        std::memcpy(&color_, cell.pixel(cell.area.left, cell.area.top), sizeof color_);
        return;
    }
    bytes_ = std::make_unique_for_overwrite<std::uint8_t[]>(bytesOfCell);
    forEachRow(cell, bytes_.get(), [&](const std::uint8_t* row, std::uint8_t* copy) {
        std::memcpy(copy, row, bytesOfRow(cell));
    });
}

void CellPixels::copyTo(const PixelBuffer& cell) const {
    if (!bytes_) return fill(cell, color_);
    forEachRow(cell, bytes_.get(), [&](std::uint8_t* row, const std::uint8_t* copy) {
        std::memcpy(row, copy, bytesOfRow(cell));
    });
}

void CellPixels::swapWith(const PixelBuffer& cell) {
    if (!bytes_ || hasOneColor(cell)) {
        CellPixels before(cell);
        copyTo(cell);
        *this = std::move(before);
        return;
    }
    forEachRow(cell, bytes_.get(), [&](std::uint8_t* row, std::uint8_t* copy) {
        std::swap_ranges(row, row + bytesOfRow(cell), copy);
    });
}

std::size_t CellPixels::bytes() const { return sizeof *this + (bytes_ ? bytesOfCell : 0); }

}  // namespace marlevo
