#include "tools/Region.h"

#include <algorithm>
#include <bit>

namespace marlevo {

Region::Region(int width, int height)
    : width_(width), height_(height),
      rowWords_((static_cast<std::size_t>(width) + wordBits - 1) / wordBits),
      words_(rowStart(height + 1) + 1) {}

bool Region::contains(GridPoint cell) const {
    if (cell.x < 0 || cell.x >= width_ || cell.y < 0 || cell.y >= height_) return false;
    return row(cell.y)[cell.x / wordBits] >> (cell.x % wordBits) & 1;
}

void Region::insert(GridPoint cell) {
    row(cell.y)[cell.x / wordBits] |= Word{1} << (cell.x % wordBits);
}

std::size_t Region::size() const {
    std::size_t count = 0;
    for (const Word word : words_)
        count += static_cast<std::size_t>(std::popcount(word));
    return count;
}

std::optional<Region::Bounds> Region::bounds() const {
    std::optional<Bounds> bounds;
    for (int y = 0; y < height_; ++y) {
        const std::span<const Word> words = row(y);
        const auto isUsed = [](Word word) { return word != 0; };
        const auto first = std::find_if(words.begin(), words.end(), isUsed);
        if (first == words.end()) continue;
        const auto last = std::find_if(words.rbegin(), words.rend(), isUsed).base() - 1;

        const int left =
            static_cast<int>(first - words.begin()) * wordBits + std::countr_zero(*first);
        const int right = static_cast<int>(last - words.begin()) * wordBits +
                          (wordBits - 1 - std::countl_zero(*last));
        if (!bounds) bounds = Bounds{left, y, right, y};
        bounds->minX = std::min(bounds->minX, left);
        bounds->maxX = std::max(bounds->maxX, right);
        bounds->maxY = y;
    }
    return bounds;
}

}  // namespace marlevo
