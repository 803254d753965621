#include "ui/controls/DistributeWidth.h"

#include <algorithm>
#include <numeric>

namespace marlevo {

std::vector<int> distributeWidth(std::span<const int> needs, int width) {
    const auto count = static_cast<int>(needs.size());
    if (count == 0 || width <= 0) return std::vector<int>(needs.size(), 0);
    const int needed = std::accumulate(needs.begin(), needs.end(), 0);
    const int greatest = *std::max_element(needs.begin(), needs.end());

    std::vector<int> shares;
    int needBefore = 0;
    // Shares are differences of rounded ends, so that they add up to the width.
    const auto endAt = [&](int index, int needUpTo) {
        if (greatest * count <= width) return width * index / count;
        if (needed <= width) return needUpTo + (width - needed) * index / count;
        return static_cast<int>(static_cast<long long>(width) * needUpTo / needed);
    };
    for (int i = 0; i < count; ++i) {
        const int needAfter = needBefore + needs[i];
        shares.push_back(endAt(i + 1, needAfter) - endAt(i, needBefore));
        needBefore = needAfter;
    }
    return shares;
}

}  // namespace marlevo
