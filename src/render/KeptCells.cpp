#include "render/KeptCells.h"

#include <algorithm>
#include <utility>

namespace marlevo {

std::size_t countPaintedStrokes(const LayerList& layers) {
    std::size_t count = 0;
    for (const Layer& layer : layers)
        if (layer.isVisible) count += layer.strokes.size();
    return count;
}

void KeptCells::keep(int cell, const ShownPicturePtr& picture, const PixelBuffer& pixels,
                     std::uint64_t usedAt) {
    Versions& versions = of(cell);
    if (std::ranges::find(versions, picture, &KeptCell::picture) == versions.end())
        versions.push_back({picture, CellPixels(pixels), usedAt});
}

void KeptCells::thin() {
    constexpr std::size_t newest = 2;
    for (Versions& versions : versions_) {
        const std::size_t size = versions.size();
        std::size_t left = 0;
        for (std::size_t i = 0; i < size; ++i) {
            if (i % 2 == 1 && i + newest < size) continue;
            if (left != i) versions[left] = std::move(versions[i]);
            ++left;
        }
        versions.erase(versions.begin() + static_cast<std::ptrdiff_t>(left), versions.end());
    }
}

void KeptCells::dropUsedBefore(std::uint64_t usedAt) {
    for (Versions& versions : versions_)
        std::erase_if(versions, [&](const KeptCell& kept) { return kept.usedAt < usedAt; });
}

}  // namespace marlevo
