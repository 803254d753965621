#pragma once

#include <span>
#include <vector>

namespace marlevo {

/// Divides a row of `width` among items that need the given widths. If an equal share is enough for
/// each, all get one. Else each gets its need and an equal part of the rest. If the needs do not
/// fit, each gets a share in proportion to its need. The shares add up to `width`; a width of 0 or
/// less gives shares of 0.
std::vector<int> distributeWidth(std::span<const int> needs, int width);

}  // namespace marlevo
