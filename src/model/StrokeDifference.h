#pragma once

#include "model/StrokeList.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace marlevo {

/// The strokes by which two versions of a list differ, each side in drawing order. A stroke that
/// was replaced or modified is on both sides. The pointers are valid as long as their list is
/// unchanged.
struct StrokeDifference {
    std::vector<const Stroke*> removed;  ///< only in `before`
    std::vector<const Stroke*> added;    ///< only in `after`

    /// Takes time proportional to what the lists do not share. A stroke in both is never reported,
    /// even at another index. Strokes are compared by identity: two equal ones that were added
    /// separately differ.
    static StrokeDifference between(const StrokeList& before, const StrokeList& after);

    /// The same, or nothing where the lists differ by more than `most` strokes, which is found out
    /// in time proportional to `most`. With few more strokes there may be a result.
    static std::optional<StrokeDifference>
    betweenSimilar(const StrokeList& before, const StrokeList& after, std::size_t most);
};

}  // namespace marlevo
