#include "render/VisibleStrokes.h"

#include "render/PaintedArea.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace marlevo {

namespace {

/// With fewer strokes, looking for hidden ones takes longer than drawing them.
constexpr std::size_t leastCount = 400;

/// Two samples of so many of the topmost strokes tell how deep all lie.
constexpr std::size_t partOfSample = 32;

/// Whether half of the strokes are likely to hide the rest. Where strokes lie anywhere, each sample
/// covers the same share of what the one before left open, and the last pixel has to go too; what
/// stays empty does not count.
bool lieDeep(int pixelsOfFirst, int pixelsOfSecond, int pixels) {
    if (pixelsOfFirst == 0) return false;
    const double rate = std::log(double(pixelsOfFirst) / std::max(pixelsOfSecond, 1));
    return std::log(pixels) < rate * (partOfSample / 2.0);
}

}  // namespace

std::vector<std::vector<StrokeInSight>>
strokesInSight(const LayerRun& run, std::span<const IntRect> areas, double scale) {
    IntRect whole;
    for (const IntRect& area : areas)
        whole = whole.unitedWith(area);
    const Rect seen{{whole.left / scale, whole.top / scale},
                    {whole.width() / scale, whole.height() / scale}};
    std::vector<std::vector<StrokeInSight>> found(areas.size());
    for (const Layer* layer : run.layers) {
        layer->strokes.visitNear(seen, penFringe / scale, [&](std::size_t, const Stroke& stroke) {
            if (stroke.points.size() < 2) return true;
            const StrokeInSight inSight{&stroke, paintedArea(stroke, scale)};
            for (std::size_t i = 0; i < areas.size(); ++i)
                if (!inSight.area.intersectedWith(areas[i]).isEmpty()) found[i].push_back(inSight);
            return true;
        });
    }
    return found;
}

std::vector<StrokeInSight> withoutHidden(std::vector<StrokeInSight> strokes, const IntRect& area,
                                         const Cover& cover) {
    if (strokes.size() < leastCount) return strokes;
    CoveredPixels covered(area);
    std::vector<StrokeInSight> visible;  // from the top down
    const int pixels = covered.openPixels();
    const std::size_t sample = strokes.size() / partOfSample;
    int openAfterFirst = 0;
    for (std::size_t i = strokes.size(); i-- > 0 && !covered.containsAll();) {
        if (!covered.containsAll(strokes[i].area) && cover(*strokes[i].stroke, covered))
            visible.push_back(strokes[i]);
        const std::size_t done = strokes.size() - i;
        if (done == sample) openAfterFirst = covered.openPixels();
        if (done == 2 * sample &&
            !lieDeep(pixels - openAfterFirst, openAfterFirst - covered.openPixels(), pixels))
            return strokes;
    }
    std::ranges::reverse(visible);
    return visible;
}

}  // namespace marlevo
