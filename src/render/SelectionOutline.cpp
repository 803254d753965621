#include "render/SelectionOutline.h"

#include <algorithm>

namespace marlevo {

namespace {

bool isDrawn(const Stroke& stroke) { return stroke.points.size() >= 2; }

}  // namespace

double selectionOutlineOpacity(const LayerList& layers, const Stroke* strokeInProgress) {
    if (strokeInProgress && isDrawn(*strokeInProgress)) return 1;
    const auto top =
        std::find_if(layers.rbegin(), layers.rend(), [](const Layer& l) { return l.isVisible; });
    if (top == layers.rend()) return 1;
    return std::any_of(top->strokes.begin(), top->strokes.end(), isDrawn) ? 1 : top->opacity;
}

}  // namespace marlevo
