#pragma once

#include <span>
#include <vector>

namespace marlevo {

/// Divides a row of `width` among items that need the given widths: equally when every item gets
/// what it needs that way; else each gets its need and an equal part of the rest; when the needs do
/// not fit either, each gets in proportion to its need. The shares add up to `width`, if positive.
std::vector<int> rowShares(std::span<const int> needs, int width);

}  // namespace marlevo
