#include "render/PictureDifference.h"

#include "model/StrokeDifference.h"
#include "render/PaintedArea.h"

#include <algorithm>
#include <cstddef>

namespace marlevo {

namespace {

constexpr IntRect everything{-(1 << 30), -(1 << 30), 1 << 30, 1 << 30};

/// More strokes than this are painted faster all together, area by area.
constexpr std::size_t maxDrawnOver = 16;

bool shareImage(const Layer& a, const Layer& b) {
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

/// Whether `came`, which is not empty, is what `after` has behind all strokes of `before`.
bool wereAppended(const std::vector<const Stroke*>& came, const StrokeList& before,
                  const StrokeList& after) {
    return before.size() + came.size() == after.size() && came.front() == &after[before.size()] &&
           came.back() == &after[after.size() - 1];
}

class Comparison {
public:
    Comparison(const LayerList& after, double scale, PictureDifference& difference)
        : top_(topmostPainted(after)), end_(after.end()), scale_(scale), difference_(difference) {}

    /// What must be repainted when `before` becomes `after` in the same place of the stack.
    void compare(const Layer& before, const Layer& after) {
        if (&before == &after) return;  // both lists share the layer
        const bool hasImage = before.imageData || after.imageData;
        if (before.isVisible != after.isVisible || !shareImage(before, after) ||
            (hasImage && before.opacity != after.opacity)) {
            // An image covers the whole canvas; without one only the strokes come or go.
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
        if (isOnTop && strokes.went.empty() && !strokes.came.empty() &&
            strokes.came.size() <= maxDrawnOver &&
            wereAppended(strokes.came, before.strokes, after.strokes)) {
            difference_.drawnOver = std::move(strokes.came);
            return;
        }
        for (const Stroke* stroke : strokes.went)
            damage(*stroke);
        for (const Stroke* stroke : strokes.came)
            damage(*stroke);
    }

    void damage(const Stroke& stroke) { difference_.damage.push_back(paintedArea(stroke, scale_)); }

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
    // Layers that came, went or changed places lie between the equal ends of the two stacks.
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
