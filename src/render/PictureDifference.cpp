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

/// The layer with the picture's topmost stroke or image; the end when nothing is painted.
LayerList::Iterator topmostPainted(const LayerList& layers) {
    const auto top = std::find_if(layers.rbegin(), layers.rend(), paintsSomething);
    return top == layers.rend() ? layers.end() : top.base() - 1;
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
        : top_(topmostPainted(after)), end_(after.end()), scale_(scale), difference_(difference) {}

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
        const bool isOnTop = top_ != end_ && &after == &*top_;
        if (isOnTop && strokes.removed.empty() && !strokes.added.empty() &&
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

    LayerList::Iterator top_;
    LayerList::Iterator end_;
    double scale_;
    PictureDifference& difference_;
};

}  // namespace

PictureDifference PictureDifference::between(const LayerList& before, const LayerList& after,
                                             double scale) {
    PictureDifference difference;
    Comparison comparison(after, scale, difference);
    const auto sameLayer = [](const Layer& a, const Layer& b) { return a.id == b.id; };
    // Both stacks begin and end with the same layers. Between them, layers were added, removed or
    // moved.
    const auto head =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end(), sameLayer).first -
        before.begin();
    const auto tail = std::mismatch(before.rbegin(), before.rend() - head, after.rbegin(),
                                    after.rend() - head, sameLayer)
                          .first -
                      before.rbegin();
    const auto firstOfTail = std::ssize(before) - tail;
    const auto newFirstOfTail = std::ssize(after) - tail;
    static const Layer none("");

    for (std::ptrdiff_t i = 0; i < head; ++i)
        comparison.compare(before[i], after[i]);
    for (std::ptrdiff_t i = head; i < firstOfTail; ++i)
        comparison.compare(before[i], none);
    for (std::ptrdiff_t i = head; i < newFirstOfTail; ++i)
        comparison.compare(none, after[i]);
    for (std::ptrdiff_t i = 0; i < tail; ++i)
        comparison.compare(before[firstOfTail + i], after[newFirstOfTail + i]);
    return difference;
}

}  // namespace marlevo
