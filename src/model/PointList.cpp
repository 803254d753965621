#include "model/PointList.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

// No comparison with NaN is true, so a side that is NaN stays NaN.
void stretch(double& least, double& greatest, double value) {
    if (std::isnan(value)) least = greatest = value;
    if (value < least) least = value;
    if (value > greatest) greatest = value;
}

}  // namespace

PointList::Block::Block(std::vector<Point> initial)
    : points(std::move(initial)), least(points.front()), greatest(points.front()) {
    for (const Point& point : points)
        stretchTo(point);
}

void PointList::Block::stretchTo(Point point) {
    stretch(least.x, greatest.x, point.x);
    stretch(least.y, greatest.y, point.y);
}

PointList::PointList(std::vector<Point> points) {
    if (!points.empty()) block_ = IntrusivePtr<Block>::make(std::move(points));
}

void PointList::append(Point point) {
    if (!block_) {
        block_ = IntrusivePtr<Block>::make(std::vector<Point>{point});
        return;
    }
    if (!block_.isUnique()) {
        auto copy = IntrusivePtr<Block>::make(*block_);
        copy->points.reserve(2 * block_->points.size());
        block_ = std::move(copy);
    }
    block_->points.push_back(point);
    block_->stretchTo(point);
}

void PointList::shrinkToFit() {
    // A copied vector has no spare capacity. Other owners keep their block.
    if (block_ && block_->points.capacity() > block_->points.size())
        block_ = IntrusivePtr<Block>::make(*block_);
}

Rect PointList::bounds() const {
    if (!block_) return {};
    const Point least = block_->least;
    const Point greatest = block_->greatest;
    return {least, {greatest.x - least.x, greatest.y - least.y}};
}

bool operator==(const PointList& a, const PointList& b) {
    return a.sharesWith(b) || std::ranges::equal(a, b);
}

}  // namespace marlevo
