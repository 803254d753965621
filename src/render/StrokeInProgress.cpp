#include "render/StrokeInProgress.h"

#include "graphics/BitmapContext.h"
#include "render/DrawOnScreen.h"
#include "render/PaintedArea.h"

#include <algorithm>
#include <limits>

namespace marlevo {

namespace {

bool haveSameStyle(const Stroke& a, const Stroke& b) {
    return a.color == b.color && a.lineWidth == b.lineWidth && a.opacity == b.opacity &&
           a.isFill == b.isFill && a.shapeType == b.shapeType;
}

Rect boundsOf(std::span<const Point> points) {
    return PointList(std::vector<Point>(points.begin(), points.end())).bounds();
}

}  // namespace

IntRect StrokeInProgress::update(const std::optional<Stroke>& stroke, double scale) {
    if (!stroke) {
        const IntRect before = areaFrom(0);
        style_.reset();
        points_.clear();
        return before;
    }
    const auto points = stroke->points.span();
    if (isContinuedBy(*stroke, scale)) {
        const std::size_t known = points_.size();
        if (known == points.size()) return {};
        points_.insert(points_.end(), points.begin() + known, points.end());
        // What was the straight end is now a curve that begins between the last two points.
        return areaFrom(known < 2 ? 0 : known - 2);
    }
    const IntRect before = areaFrom(0);
    style_ = *stroke;
    style_->points = {};
    points_.assign(points.begin(), points.end());
    scale_ = scale;
    return before.unitedWith(areaFrom(0));
}

bool StrokeInProgress::looksLike(const Stroke& other) const {
    return style_ && points_.size() >= 2 && haveSameStyle(*style_, other) &&
           std::ranges::equal(points_, other.points);
}

bool StrokeInProgress::isContinuedBy(const Stroke& stroke, double scale) const {
    return style_ && scale == scale_ && haveSameStyle(*style_, stroke) &&
           stroke.shapeType == Stroke::ShapeType::freehand && !stroke.isFill &&
           stroke.points.size() >= points_.size() &&
           std::equal(points_.begin(), points_.end(), stroke.points.begin());
}

IntRect StrokeInProgress::areaFrom(std::size_t firstPoint) const {
    if (!style_ || points_.size() < 2) return {};
    return paintedArea(boundsOf(std::span(points_).subspan(firstPoint)), style_->lineWidth, scale_);
}

void StrokeInProgress::paint(const PixelBuffer& target) const {
    if (!style_ || points_.size() < 2) return;
    BitmapContext context(target, DeviceFrame::yDown(scale_));
    Stroke stroke = *style_;
    stroke.points = PointList(points_);
    drawOnScreen(context, stroke);
}

}  // namespace marlevo
