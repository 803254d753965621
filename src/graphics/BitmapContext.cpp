#include "graphics/BitmapContext.h"

#include "graphics/Blend.h"
#include "graphics/DrawImage.h"
#include "graphics/FillOutline.h"
#include "graphics/Flatten.h"
#include "graphics/StrokeByDistance.h"
#include "graphics/Stroker.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

struct State {
    DeviceFrame frame;
    double alpha = 1;
};

/// The box on the device that can leave a mark in `area` within `reach`; rounding adds a margin.
Bounds cullRect(const IntRect& area, double reach) { return Bounds::of(area).grownBy(reach + 2); }

/// The box of all the path's points, control points included.
Bounds boundsOf(const Path& path) {
    Bounds bounds;
    for (const Path::Element& e : path.elements()) {
        bounds.include(e.point);
        switch (e.kind) {
        case Path::Kind::move:
        case Path::Kind::line:
            break;
        case Path::Kind::quadCurve:
            bounds.include(e.control);
            break;
        case Path::Kind::rect:
        case Path::Kind::ellipse:
            bounds.include({e.rect().maxX(), e.rect().maxY()});
            break;
        }
    }
    return bounds;
}

/// A pen as wide and as high as it is on the device.
struct Pen {
    double width;
    double height;

    bool isVisible() const { return width > 0 && height > 0; }
    double reach() const { return std::max({width, height, 1.0}) / 2; }

    /// The choice must not depend on the target, or its bands would not fit together.
    bool drawsByDistance() const { return width == height && width <= maxWidthByDistance; }
};

bool isWhole(double value) { return value == std::floor(value); }

}  // namespace

struct BitmapContext::Rasterizer {
    Rasterizer(PixelBuffer pixels, DeviceFrame frame) : target(pixels), state{frame} {}

    PixelBuffer target;
    State state;
    std::vector<State> saved;
    // Kept from one operation to the next for their memory.
    FlattenedPath flattened;
    FlattenedPath outline;

    PackedColor pack(const Color& color) const {
        return packColor(color, state.alpha, target.order);
    }

    Pen pen(double lineWidth) const {
        return {lineWidth * std::abs(state.frame.scaleX), lineWidth * std::abs(state.frame.scaleY)};
    }

    /// Flattens the visible part of the path to `flattened`; false if that is nothing.
    bool flattenVisible(const Path& path, double reach, OpenContours openContours) {
        const Bounds cull = cullRect(target.area, reach);
        if (!state.frame.map(boundsOf(path)).touches(cull)) return false;
        flatten(path, state.frame, flatteningTolerance, flattened, openContours, cull);
        return !flattened.isEmpty();
    }

    /// Flattens the whole path if any part of it is visible, for an outline whose corners depend on
    /// more than the segment nearby.
    bool flattenWhole(const Path& path, double reach) {
        if (!state.frame.map(boundsOf(path)).touches(cullRect(target.area, reach))) return false;
        flatten(path, state.frame, flatteningTolerance, flattened);
        return !flattened.isEmpty();
    }

    void fillPixels(const IntRect& rect, PackedColor color) {
        const IntRect visible = rect.intersectedWith(target.area);
        if (visible.isEmpty()) return;
        const auto width = static_cast<std::size_t>(visible.width());
        for (int y = visible.top; y < visible.bottom; ++y) {
            blendSolid(target.pixel(visible.left, y), width, color);
        }
    }
};

BitmapContext::BitmapContext(PixelBuffer target, DeviceFrame frame)
    : rasterizer_(std::make_unique<Rasterizer>(target, frame)) {}

BitmapContext::~BitmapContext() = default;

void BitmapContext::saveState() { rasterizer_->saved.push_back(rasterizer_->state); }

void BitmapContext::restoreState() {
    if (rasterizer_->saved.empty()) return;
    rasterizer_->state = rasterizer_->saved.back();
    rasterizer_->saved.pop_back();
}

void BitmapContext::scale(double x, double y) {
    rasterizer_->state.frame.scaleX *= x;
    rasterizer_->state.frame.scaleY *= y;
}

void BitmapContext::setAlpha(double alpha) { rasterizer_->state.alpha = alpha; }

double BitmapContext::alpha() const { return rasterizer_->state.alpha; }

const IntRect& BitmapContext::area() const { return rasterizer_->target.area; }

void BitmapContext::fillRect(const Rect& rect, const Color& color) {
    const Bounds box = rasterizer_->state.frame.map(Bounds::of(rect));
    constexpr Bounds limit = flattenedRange;
    const bool isInRange = box.left >= limit.left && box.right <= limit.right &&
                           box.top >= limit.top && box.bottom <= limit.bottom;
    if (isInRange && isWhole(box.left) && isWhole(box.top) && isWhole(box.right) &&
        isWhole(box.bottom)) {
        rasterizer_->fillPixels({static_cast<int>(box.left), static_cast<int>(box.top),
                                 static_cast<int>(box.right), static_cast<int>(box.bottom)},
                                rasterizer_->pack(color));
        return;
    }
    Path path;
    path.addRect(rect);
    fillPath(path, color);
}

void BitmapContext::fillPath(const Path& path, const Color& color) {
    const PackedColor packed = rasterizer_->pack(color);
    if (packed.alpha == 0 || !rasterizer_->flattenVisible(path, 0, OpenContours::close)) return;
    fillOutline(rasterizer_->flattened, rasterizer_->target, packed);
}

void BitmapContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    const PackedColor packed = rasterizer_->pack(color);
    const Pen pen = rasterizer_->pen(lineWidth);
    if (packed.alpha == 0 || !pen.isVisible()) return;

    if (pen.drawsByDistance()) {
        if (!rasterizer_->flattenVisible(path, pen.reach(), OpenContours::keep)) return;
        strokeByDistance(rasterizer_->flattened, pen.width, rasterizer_->target, packed);
    } else {
        // A corner of the outline depends on the segments before and behind it.
        const DeviceFrame& frame = rasterizer_->state.frame;
        if (!rasterizer_->flattenWhole(path, pen.reach())) return;
        strokeOutline(rasterizer_->flattened, lineWidth, frame.scaleX, frame.scaleY,
                      rasterizer_->outline);
        fillOutline(rasterizer_->outline, rasterizer_->target, packed);
    }
}

std::optional<PackedColor> BitmapContext::holdStroke(const Path& path, const Color& color,
                                                     double lineWidth, HeldCoverage& held) {
    const PackedColor packed = rasterizer_->pack(color);
    const Pen pen = rasterizer_->pen(lineWidth);
    if (pen.isVisible() && !pen.drawsByDistance()) return std::nullopt;
    if (packed.alpha > 0 && pen.isVisible() &&
        rasterizer_->flattenVisible(path, pen.reach(), OpenContours::keep)) {
        holdByDistance(rasterizer_->flattened, pen.width, rasterizer_->target.area, packed, held);
    }
    return packed;
}

void BitmapContext::blendHeld(std::span<const CoverageBlock> blocks, PackedColor color) {
    marlevo::blendHeld(blocks, rasterizer_->target, color);
}

void BitmapContext::drawImage(const RasterImage& image, const Rect& rect) {
    marlevo::drawImage(image, rasterizer_->state.frame.map(Bounds::of(rect)),
                       rasterizer_->state.alpha, rasterizer_->target);
}

}  // namespace marlevo
