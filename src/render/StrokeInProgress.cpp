#include "render/StrokeInProgress.h"

#include "graphics/BitmapContext.h"
#include "graphics/Flatten.h"
#include "render/DeviceBounds.h"
#include "render/StrokePainting.h"

#include <algorithm>
#include <cmath>
#include <span>

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

IntRect StrokeInProgress::update(const Stroke* stroke, double scale) {
    try {
        return follow(stroke, scale);
    } catch (...) {
        style_.reset();  // the next call starts anew
        throw;
    }
}

IntRect StrokeInProgress::follow(const Stroke* stroke, double scale) {
    if (!stroke) {
        const IntRect before = boundsFrom(0);
        style_.reset();
        points_.clear();
        growing_.reset();
        return before;
    }
    const auto points = stroke->points.span();
    if (isContinuedBy(*stroke, scale)) {
        const std::size_t known = points_.size();
        points_.insert(points_.end(), points.begin() + static_cast<std::ptrdiff_t>(known),
                       points.end());
        return points_.size() > known ? grow(known) : IntRect{};
    }
    const IntRect before = boundsFrom(0);
    style_ = *stroke;
    style_->points = {};
    points_.assign(points.begin(), points.end());
    scale_ = scale;
    startGrowing();
    grow(0);
    return before.unitedWith(boundsFrom(0));
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

void StrokeInProgress::startGrowing() {
    const double width = style_->lineWidth * scale_;
    const bool canGrow = style_->shapeType == Stroke::ShapeType::freehand && !style_->isFill &&
                         width > 0 && std::isfinite(width);
    growing_ = canGrow ? IncrementalStroke::make(width) : nullptr;
    curvesDrawn_ = 0;
}

/// Draws what the points after the first `known` add. The curve towards a point is fixed by the
/// next point.
IntRect StrokeInProgress::grow(std::size_t known) {
    const std::size_t count = points_.size();
    if (count < 2) return {};
    const bool isPlain = std::all_of(
        points_.begin() + static_cast<std::ptrdiff_t>(known), points_.end(), [&](Point p) {
            constexpr double limit = IncrementalStroke::maxCoordinate;
            return std::abs(p.x * scale_) <= limit && std::abs(p.y * scale_) <= limit;
        });
    if (!isPlain || (growing_ && growing_->bytes() > maxGrowingBytes_)) growing_.reset();
    if (!growing_) return boundsFrom(known < 2 ? 0 : known - 2);

    const auto middle = [&](std::size_t i) {
        return Point{(points_[i].x + points_[i + 1].x) * 0.5,
                     (points_[i].y + points_[i + 1].y) * 0.5};
    };
    Path path;
    path.move(curvesDrawn_ == 0 ? points_[0] : middle(curvesDrawn_ - 1));
    if (count > 2) {
        for (std::size_t i = curvesDrawn_; i + 1 < count; ++i)
            path.addQuadCurve(middle(i), points_[i]);
    }
    path.addLine(points_.back());
    FlattenedPath line;
    flatten(path, DeviceFrame::yDown(scale_), flatteningTolerance, line);

    // Except for the first line, its first point is drawn already.
    const std::size_t first = known < 2 ? 0 : 1;
    const auto fixed = std::span(line.points).subspan(first, line.points.size() - 1 - first);
    if (count > 2) curvesDrawn_ = count - 1;
    return growing_->extend(fixed, line.points.back());
}

IntRect StrokeInProgress::boundsFrom(std::size_t firstPoint) const {
    if (!style_ || points_.size() < 2) return {};
    return deviceBounds(boundsOf(std::span(points_).subspan(firstPoint)), style_->lineWidth,
                        scale_);
}

void StrokeInProgress::paint(const PixelBuffer& target) const {
    if (!style_ || points_.size() < 2) return;
    if (growing_) {
        growing_->blendInto(target, packColor(style_->color, style_->opacity, target.order));
        return;
    }
    BitmapContext context(target, DeviceFrame::yDown(scale_));
    Stroke stroke = *style_;
    stroke.points = PointList(points_);
    drawStrokeOnScreen(context, stroke);
}

}  // namespace marlevo
