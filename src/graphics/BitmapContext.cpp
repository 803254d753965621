#include "graphics/BitmapContext.h"

#include "graphics/Blend.h"
#include "graphics/DrawImage.h"
#include "graphics/FillOutline.h"
#include "graphics/Flatten.h"
#include "graphics/StrokeByDistance.h"
#include "graphics/Stroker.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace marlevo {

namespace {

struct State {
    DeviceFrame frame;
    double alpha = 1;
};

/// What lies near enough to `area` to leave a mark there: within `reach`, and what rounding adds.
VisibleRange visibleRange(const IntRect& area, double reach) {
    const double margin = reach + 2;
    return {area.left - margin, area.top - margin, area.right + margin, area.bottom + margin};
}

/// Whether the box around all the path's points, on the device, meets `range`.
bool isInSight(const Path& path, const DeviceFrame& frame, const VisibleRange& range) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    double minX = infinity;
    double minY = infinity;
    double maxX = -infinity;
    double maxY = -infinity;
    // A coordinate that is not a number compares false and does not count.
    const auto include = [&](double x, double y) {
        minX = x < minX ? x : minX;
        maxX = x > maxX ? x : maxX;
        minY = y < minY ? y : minY;
        maxY = y > maxY ? y : maxY;
    };
    for (const Path::Element& e : path.elements()) {
        include(e.point.x, e.point.y);
        switch (e.kind) {
        case Path::Kind::move:
        case Path::Kind::line:
            break;
        case Path::Kind::quadCurve:
            include(e.control.x, e.control.y);
            break;
        case Path::Kind::rect:
        case Path::Kind::ellipse:
            include(e.rect().maxX(), e.rect().maxY());
            break;
        }
    }
    const auto [left, right] =
        std::minmax({minX * frame.scaleX + frame.originX, maxX * frame.scaleX + frame.originX});
    const auto [top, bottom] =
        std::minmax({minY * frame.scaleY + frame.originY, maxY * frame.scaleY + frame.originY});
    return left <= range.right && right >= range.left && top <= range.bottom && bottom >= range.top;
}

bool isWhole(double value) { return value == std::floor(value); }

}  // namespace

struct BitmapContext::Rasterizer {
    PixelBuffer target;
    State state;
    std::vector<State> saved;
    // Kept from one operation to the next for their memory.
    FlattenedPath flattened;
    FlattenedPath outline;

    PackedColor pack(const Color& color) const {
        return packColor(color, state.alpha, target.order);
    }

    /// Flattens what can be seen of the path, to `flattened`; false if that is nothing.
    bool flattenVisible(const Path& path, double reach, SubPathEnds ends) {
        const VisibleRange visible = visibleRange(target.area, reach);
        if (!isInSight(path, state.frame, visible)) return false;
        flatten(path, state.frame, flatteningTolerance, flattened, ends, visible);
        return !flattened.isEmpty();
    }

    /// The pen is `width` high and `stretch` times as wide on the device: the outline is made in a
    /// frame without the stretch, where the pen is round.
    void strokeByOutline(const Path& path, double width, double stretch, PackedColor color) {
        VisibleRange visible = visibleRange(target.area, width / 2 * std::max(stretch, 1.0));
        if (!isInSight(path, state.frame, visible)) return;
        visible.left /= stretch;
        visible.right /= stretch;
        DeviceFrame unstretched = state.frame;
        unstretched.scaleX /= stretch;
        unstretched.originX /= stretch;
        const double tolerance = flatteningTolerance / std::max(stretch, 1.0);
        flatten(path, unstretched, tolerance, flattened, SubPathEnds::asGiven, visible);
        strokeOutline(flattened, width, tolerance, outline);
        for (Point& p : outline.points)
            p.x *= stretch;
        fillOutline(outline, target, color);
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
    : rasterizer_(std::make_unique<Rasterizer>(target, State{frame, 1.0})) {}

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

void BitmapContext::fillRect(const Rect& rect, const Color& color) {
    const DeviceFrame& frame = rasterizer_->state.frame;
    const auto [left, right] = std::minmax(
        {rect.minX() * frame.scaleX + frame.originX, rect.maxX() * frame.scaleX + frame.originX});
    const auto [top, bottom] = std::minmax(
        {rect.minY() * frame.scaleY + frame.originY, rect.maxY() * frame.scaleY + frame.originY});
    constexpr double limit = FlattenedPath::maxCoordinate;
    const bool isInRange = left >= -limit && right <= limit && top >= -limit && bottom <= limit;
    if (isInRange && isWhole(left) && isWhole(top) && isWhole(right) && isWhole(bottom)) {
        rasterizer_->fillPixels({static_cast<int>(left), static_cast<int>(top),
                                 static_cast<int>(right), static_cast<int>(bottom)},
                                rasterizer_->pack(color));
        return;
    }
    Path path;
    path.addRect(rect);
    fillPath(path, color);
}

void BitmapContext::fillPath(const Path& path, const Color& color) {
    const PackedColor packed = rasterizer_->pack(color);
    if (packed.alpha == 0 || !rasterizer_->flattenVisible(path, 0, SubPathEnds::joined)) return;
    fillOutline(rasterizer_->flattened, rasterizer_->target, packed);
}

void BitmapContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    const DeviceFrame& frame = rasterizer_->state.frame;
    const PackedColor packed = rasterizer_->pack(color);
    const double width = lineWidth * std::abs(frame.scaleY);
    const double stretch = std::abs(frame.scaleX / frame.scaleY);
    if (packed.alpha == 0 || !(width > 0) || !(stretch > 0)) return;
    // The choice must not depend on the target, or its bands would not fit together.
    if (stretch == 1 && width <= maxWidthByDistance) {
        if (!rasterizer_->flattenVisible(path, width / 2, SubPathEnds::asGiven)) return;
        strokeByDistance(rasterizer_->flattened, width, rasterizer_->target, packed);
    } else {
        rasterizer_->strokeByOutline(path, width, stretch, packed);
    }
}

void BitmapContext::drawImage(const RasterImage& image, const Rect& rect) {
    const DeviceFrame& frame = rasterizer_->state.frame;
    const auto [left, right] = std::minmax(
        {rect.minX() * frame.scaleX + frame.originX, rect.maxX() * frame.scaleX + frame.originX});
    const auto [top, bottom] = std::minmax(
        {rect.minY() * frame.scaleY + frame.originY, rect.maxY() * frame.scaleY + frame.originY});
    marlevo::drawImage(image, {left, top, right, bottom}, rasterizer_->state.alpha,
                       rasterizer_->target);
}

}  // namespace marlevo
