#include "render/PictureDifference.h"

#include "model/StrokeDifference.h"
#include "render/DeviceBounds.h"

#include <algorithm>
#include <cstddef>

namespace marlevo {

namespace {

constexpr IntRect everything{-(1 << 30), -(1 << 30), 1 << 30, 1 << 30};

/// More strokes than this are painted faster by repainting their area.
constexpr std::size_t maxDrawnOver = 16;

/// Compares the files only: an image without changes may have another opacity.
bool shareImageFile(const Layer& a, const Layer& b) {
    if (!a.imageData || !b.imageData) return a.imageData.has_value() == b.imageData.has_value();
    return a.imageData->sharesWith(*b.imageData);
}

bool paintsSomething(const Layer& layer) {
    return layer.isVisible && (layer.imageData || !layer.strokes.isEmpty());
}

/// The layer with the picture's topmost stroke or image; null when nothing is painted.
const Layer* topmostPainted(const LayerList& layers) {
    const auto top = std::find_if(layers.rbegin(), layers.rend(), paintsSomething);
    return top == layers.rend() ? nullptr : &*top;
}

/// True if `after` consists of the strokes of `before` and then those of `added`, at least one.
bool wereAppended(const std::vector<const Stroke*>& added, const StrokeList& before,
                  const StrokeList& after) {
    return before.size() + added.size() == after.size() && added.front() == &after[before.size()] &&
           added.back() == &after[after.size() - 1];
}

class Comparison {
public:
    Comparison(const LayerList& after, double scale, PictureDifference& difference)
        : top_(topmostPainted(after)), scale_(scale), difference_(difference) {}

    /// What must be repainted when `before` becomes `after` in the same place of the stack.
    void compare(const Layer& before, const Layer& after) {
        if (&before == &after) return;  // both lists share the layer
        const bool hasImage = before.imageData || after.imageData;
        if (before.isVisible != after.isVisible || !shareImageFile(before, after) ||
            (hasImage && before.opacity != after.opacity)) {
            // An image covers the whole canvas. Without one only the strokes change.
            if (hasImage) return difference_.damage.push_back(everything);
            damageStrokes(before);
            damageStrokes(after);
        } else if (after.isVisible) {
            compareStrokes(before, after);
        }
    }

    void damageStrokes(const Layer& layer) {
        for (const Stroke& stroke : layer.strokes)
            damage(stroke);
    }

private:
    void compareStrokes(const Layer& before, const Layer& after) {
        auto strokes = StrokeDifference::between(before.strokes, after.strokes);
        if (&after == top_ && strokes.removed.empty() && !strokes.added.empty() &&
            strokes.added.size() <= maxDrawnOver &&
            wereAppended(strokes.added, before.strokes, after.strokes)) {
            difference_.drawnOver = std::move(strokes.added);
            return;
        }
        for (const Stroke* stroke : strokes.removed)
            damage(*stroke);
        for (const Stroke* stroke : strokes.added)
            damage(*stroke);
    }

    void damage(const Stroke& stroke) {
        difference_.damage.push_back(deviceBounds(stroke, scale_));
    }

    const Layer* top_;
    double scale_;
    PictureDifference& difference_;
};

}  // namespace

PictureDifference PictureDifference::between(const LayerList& before, const LayerList& after,
                                             double scale) {
    PictureDifference difference;
    Comparison comparison(after, scale, difference);
    // Both stacks begin and end with the same layers. Between them, layers were added, removed or
    // moved.
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < shorter && before[head].id == after[head].id)
        ++head;
    std::size_t tail = 0;
    while (tail < shorter - head &&
           before[before.size() - 1 - tail].id == after[after.size() - 1 - tail].id)
        ++tail;
    static const Layer none("");

    for (std::size_t i = 0; i < head; ++i)
        comparison.compare(before[i], after[i]);
    for (std::size_t i = head; i < before.size() - tail; ++i)
        comparison.compare(before[i], none);
    for (std::size_t i = head; i < after.size() - tail; ++i)
        comparison.compare(none, after[i]);
    for (std::size_t i = tail; i > 0; --i)
        comparison.compare(before[before.size() - i], after[after.size() - i]);
    return difference;
}

}  // namespace marlevo
