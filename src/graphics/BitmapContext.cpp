#include "graphics/BitmapContext.h"

#include "graphics/Blend.h"
#include "graphics/Bounds.h"
#include "graphics/DrawImage.h"
#include "graphics/FlattenedPath.h"
#include "graphics/Rasterizer.h"

#include <cmath>

namespace marlevo {

namespace {

bool isWhole(double value) { return value == std::floor(value); }

/// True if the edges are between pixels, so that a fill covers each pixel wholly or not at all.
bool hasWholePixels(const Bounds& box) {
    constexpr double limit = FlattenedPath::maxCoordinate;
    return box.left >= -limit && box.right <= limit && box.top >= -limit && box.bottom <= limit &&
           isWhole(box.left) && isWhole(box.top) && isWhole(box.right) && isWhole(box.bottom);
}

}  // namespace

void BitmapContext::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
}

void BitmapContext::scale(double x, double y) {
    state_.frame.scaleX *= x;
    state_.frame.scaleY *= y;
}

void BitmapContext::fillRect(const Rect& rect, const Color& color) {
    const Bounds box = state_.frame.map(Bounds::of(rect));
    if (!hasWholePixels(box)) {
        Path path;
        path.addRect(rect);
        fillPath(path, color);
        return;
    }
    if (target_.area.isEmpty()) return;
    const IntRect pixels = box.pixelsWithin(target_.area);
    if (pixels.isEmpty()) return;
    const PackedColor packed = packColor(color, state_.alpha, target_.order);
    if (packed.alpha == 0) return;
    for (int y = pixels.top; y < pixels.bottom; ++y)
        blendSolid(target_.pixel(pixels.left, y), static_cast<std::size_t>(pixels.width()), packed);
}

void BitmapContext::fillPath(const Path& path, const Color& color) {
    const PackedColor packed = packColor(color, state_.alpha, target_.order);
    if (packed.alpha > 0) rasterizeFill(path, state_.frame, {target_, packed});
}

void BitmapContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    const PackedColor packed = packColor(color, state_.alpha, target_.order);
    if (packed.alpha > 0)
        rasterizeStroke(path, lineWidth, state_.frame, BlendSink{target_, packed});
}

void BitmapContext::drawImage(const RasterImage& image, const Rect& rect) {
    marlevo::drawImage(image, state_.frame.map(Bounds::of(rect)), state_.alpha, target_);
}

}  // namespace marlevo
