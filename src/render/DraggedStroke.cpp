#include "render/DraggedStroke.h"

#include "model/StrokeDifference.h"

#include <cstddef>

namespace marlevo {

std::optional<LayerList> withoutReplacedTopStroke(const LayerList& before, const LayerList& after) {
    std::size_t top = after.size();
    while (top > 0 && !(after[top - 1].isVisible && !after[top - 1].strokes.isEmpty()))
        --top;
    if (top == 0 || before.size() != after.size()) return std::nullopt;
    --top;
    const StrokeList& strokes = after[top].strokes;
    const auto replaced = StrokeDifference::betweenSimilar(before[top].strokes, strokes, 2);
    const std::size_t last = strokes.size() - 1;
    if (!replaced || replaced->removed.size() != 1 || replaced->added.size() != 1 ||
        replaced->added.front() != &strokes[last])
        return std::nullopt;
    LayerList without = after;
    without[top].strokes.erase(last);
    return without;
}

}  // namespace marlevo
