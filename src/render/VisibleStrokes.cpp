#include "render/VisibleStrokes.h"

#include "render/DeviceBounds.h"

#include <cstddef>

namespace marlevo {

namespace {

/// Fewer strokes are drawn faster from the lowest to the topmost.
constexpr std::size_t leastInReverse = 64;

/// The topmost strokes, 1 in `partOfSample`, are drawn first. If they leave more than this share of
/// the pixels visible, the strokes overlap little, and recording them takes longer than it saves.
constexpr std::size_t partOfSample = 16;
constexpr double mostOpenAfterSample = 0.7;

}  // namespace

VisibleStrokes::VisibleStrokes(const LayerRun& run, const IntRect& area, double scale)
    : scale_(scale) {
    for (const Layer* layer : run.layers) {
        layer->strokes.visitNear(onCanvas(area, scale), penFringe / scale,
                                 [&](std::size_t, const Stroke& stroke, const FloatBox& box) {
                                     found_.push_back({&stroke, box});
                                     return true;
                                 });
    }
}

void VisibleStrokes::draw(BitmapContext& context, const DrawStroke& drawStroke,
                          FrontToBackContext::Limits limits) const {
    const FloatBox near = FloatBox::around(onCanvas(context.area(), scale_), penFringe / scale_);
    std::vector<const Found*> strokes;
    for (const Found& each : found_)
        if (each.box.touches(near)) strokes.push_back(&each);

    std::size_t below = strokes.size();
    const auto drawBelow = [&] {
        for (std::size_t i = 0; i < below; ++i)
            drawStroke(context, *strokes[i]->stroke);
    };
    if (strokes.size() < leastInReverse) return drawBelow();

    FrontToBackContext fromTop(context, limits);
    const std::size_t sampled = below - below / partOfSample;
    while (below > 0 && !fromTop.hidesAll() && !fromTop.isFull()) {
        if (below == sampled && fromTop.visibleShare() > mostOpenAfterSample) break;
        const Found& next = *strokes[--below];
        if (!fromTop.hides(deviceBounds(next.box, scale_))) drawStroke(fromTop, *next.stroke);
    }
    if (!fromTop.hidesAll()) drawBelow();
    fromTop.flush();
}

}  // namespace marlevo
