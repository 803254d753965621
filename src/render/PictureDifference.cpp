#include "render/PictureDifference.h"

#include "model/StrokeDifference.h"
#include "render/DeviceBounds.h"
#include "render/StrokeCells.h"

#include <algorithm>

namespace marlevo {

namespace {

/// More strokes than this are painted faster by repainting their cells.
constexpr std::size_t maxDrawnOver = 64;

/// After so many points the cells of a stroke are those of its bounds, which are found faster.
constexpr std::size_t maxPointsFollowed = 20'000;

/// Compares the files only: an image without changes may have another opacity.
bool shareImageFile(const Layer& a, const Layer& b) {
    if (!a.imageData || !b.imageData) return a.imageData.has_value() == b.imageData.has_value();
    return a.imageData->sharesWith(*b.imageData);
}

bool paintsSomething(const Layer& layer) {
    return layer.isVisible && (layer.imageData || !layer.strokes.isEmpty());
}

/// True if two painted layers share all that is painted.
bool showTheSame(const Layer& a, const Layer& b) {
    return &a == &b || (shareImageFile(a, b) && (!a.imageData || a.opacity == b.opacity) &&
                        a.strokes.sharesWith(b.strokes));
}

/// The part of two stacks that begins and ends with the same layers. Between `head` layers at the
/// bottom and `tail` layers at the top, layers were added, removed or moved.
struct Alignment {
    Alignment(const LayerList& before, const LayerList& after) {
        const std::size_t shorter = std::min(before.size(), after.size());
        while (head < shorter && before[head].id == after[head].id)
            ++head;
        while (tail < shorter - head &&
               before[before.size() - 1 - tail].id == after[after.size() - 1 - tail].id)
            ++tail;
    }

    std::size_t head = 0;
    std::size_t tail = 0;
};

class Comparison {
public:
    Comparison(double scale, std::size_t most, PictureDifference& difference)
        : scale_(scale), most_(most), difference_(difference) {}

    /// False if the pictures differ by too much.
    bool compare(const LayerList& before, const LayerList& after) {
        const Alignment same(before, after);
        static const Layer none("");
        for (std::size_t i = 0; i < same.head; ++i)
            compare(before[i], after[i]);
        for (std::size_t i = same.head; i < before.size() - same.tail; ++i)
            compare(before[i], none);
        for (std::size_t i = same.head; i < after.size() - same.tail; ++i)
            compare(none, after[i]);
        for (std::size_t i = same.tail; i > 0; --i)
            compare(before[before.size() - i], after[after.size() - i]);
        return !isTooLarge_;
    }

private:
    /// What must be repainted when `before` becomes `after` in the same place of the stack, from
    /// the lowest layer to the topmost.
    void compare(const Layer& before, const Layer& after) {
        const bool wasPainted = paintsSomething(before);
        const bool isPainted = paintsSomething(after);
        if (isTooLarge_ || (!wasPainted && !isPainted)) return;
        if (wasPainted == isPainted && showTheSame(before, after)) return stopDrawingOver();
        difference_.isEmpty = false;
        const bool hasImage = (wasPainted && before.imageData) || (isPainted && after.imageData);
        if (hasImage && (wasPainted != isPainted || !shareImageFile(before, after) ||
                         before.opacity != after.opacity)) {
            // An image covers the whole canvas.
            stopDrawingOver();
            difference_.isOnlyDrawnOver = false;
            difference_.damage.add(difference_.damage.allowedArea());
        } else if (wasPainted && isPainted) {
            compareStrokes(before.strokes, after.strokes);
        } else if (isPainted && after.strokes.size() <= maxDrawnOver) {
            std::vector<const Stroke*> added;
            for (const Stroke& stroke : after.strokes)
                added.push_back(&stroke);
            drawOver(added);
        } else {
            stopDrawingOver();
            damage(wasPainted ? before.strokes : after.strokes);
        }
    }

    void compareStrokes(const StrokeList& before, const StrokeList& after) {
        const auto found = StrokeDifference::betweenSimilar(before, after, most_);
        if (!found) {
            isTooLarge_ = true;
            return;
        }
        const StrokeDifference& strokes = *found;
        stopDrawingOver();
        for (const Stroke* stroke : strokes.removed)
            damage(*stroke);
        const std::size_t count = strokes.added.size();
        if (count > 0 && strokes.added.front() == &after[after.size() - count])
            return drawOver(strokes.added);
        for (const Stroke* stroke : strokes.added)
            damage(*stroke);
    }

    /// Assumes that nothing is painted above these strokes; stopDrawingOver() corrects that.
    void drawOver(const std::vector<const Stroke*>& added) {
        auto& drawnOver = difference_.drawnOver;
        drawnOver.insert(drawnOver.end(), added.begin(), added.end());
        if (drawnOver.size() > std::min(maxDrawnOver, most_)) stopDrawingOver();
    }

    /// A painted layer above the strokes that are to be drawn over makes them damage.
    void stopDrawingOver() {
        for (const Stroke* stroke : difference_.drawnOver)
            damage(*stroke);
        difference_.drawnOver.clear();
    }

    void damage(const StrokeList& strokes) {
        difference_.isOnlyDrawnOver = false;
        if (strokes.size() > most_) {
            isTooLarge_ = true;
            return;
        }
        CellSet& cells = difference_.damage;
        strokes.visitNear(onCanvas(cells.allowedArea(), scale_), penFringe / scale_,
                          [&](std::size_t, const Stroke& stroke, const FloatBox& box) {
                              if (!cells.covers(deviceBounds(box, scale_))) damage(stroke);
                              return !cells.isFull();
                          });
    }

    void damage(const Stroke& stroke) {
        difference_.isOnlyDrawnOver = false;
        if (++strokes_ > most_) isTooLarge_ = true;
        if (points_ > maxPointsFollowed)
            return difference_.damage.add(deviceBounds(stroke, scale_));
        points_ += stroke.points.size();
        addCellsOf(stroke, scale_, difference_.damage);
    }

    double scale_;
    std::size_t most_;
    std::size_t strokes_ = 0;
    std::size_t points_ = 0;  ///< of the strokes whose curves were followed
    bool isTooLarge_ = false;
    PictureDifference& difference_;
};

}  // namespace

std::optional<PictureDifference> PictureDifference::between(const LayerList& before,
                                                            const LayerList& after, double scale,
                                                            const CellSet& allowed,
                                                            std::size_t most) {
    PictureDifference difference;
    difference.damage = allowed.emptied();
    if (!Comparison(scale, most, difference).compare(before, after)) return std::nullopt;
    difference.drawnOverCells = allowed.emptied();
    for (const Stroke* stroke : difference.drawnOver)
        addCellsOf(*stroke, scale, difference.drawnOverCells);
    return difference;
}

bool showTheSame(const LayerList& a, const LayerList& b) {
    auto inA = a.begin();
    auto inB = b.begin();
    while (true) {
        inA = std::find_if(inA, a.end(), paintsSomething);
        inB = std::find_if(inB, b.end(), paintsSomething);
        if (inA == a.end() || inB == b.end()) return inA == a.end() && inB == b.end();
        if (!showTheSame(*inA, *inB)) return false;
        ++inA;
        ++inB;
    }
}

}  // namespace marlevo
