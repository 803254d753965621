#include "graphics/FrontToBackContext.h"

#include "graphics/Blend.h"
#include "graphics/DistanceField.h"
#include "graphics/Rasterizer.h"

#include <span>

namespace marlevo {

void FrontToBackContext::flush() {
    std::span<const CoverageBlock> rest = blocks_;
    target_.saveState();
    for (; !operations_.empty(); operations_.pop_back()) {
        const Operation& lowest = operations_.back();
        if (lowest.draw) {
            lowest.draw();
        } else {
            putBlocks(rest.last(lowest.blockCount), {target_.target(), lowest.color});
            rest = rest.first(rest.size() - lowest.blockCount);
        }
    }
    target_.restoreState();
    blocks_.clear();
}

void FrontToBackContext::fillRect(const Rect& rect, const Color& color) {
    defer([=](BitmapContext& target) { target.fillRect(rect, color); });
}

void FrontToBackContext::fillPath(const Path& path, const Color& color) {
    deferredElements_ += path.elements().size();
    defer([=](BitmapContext& target) { target.fillPath(path, color); });
}

void FrontToBackContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    const DeviceFrame& frame = target_.frame();
    if (!DevicePen(lineWidth, frame).drawsByDistance()) {
        deferredElements_ += path.elements().size();
        defer([=](BitmapContext& target) { target.strokePath(path, color, lineWidth); });
        return;
    }
    const PixelBuffer& pixels = target_.target();
    const PackedColor packed = packColor(color, target_.alpha(), pixels.order);
    if (packed.alpha == 0) return;
    const std::size_t before = blocks_.size();
    rasterizeStroke(path, lineWidth, frame,
                    RecordSink{pixels.area, packed.alpha == 255, occlusion_, blocks_});
    if (blocks_.size() > before) operations_.push_back({packed, blocks_.size() - before});
}

void FrontToBackContext::drawImage(const RasterImage& image, const Rect& rect) {
    defer([=](BitmapContext& target) { target.drawImage(image, rect); });
}

}  // namespace marlevo
