#pragma once

#include "graphics/Point.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

namespace marlevo {

/// A list of points with value semantics whose copies share one block. Changed in place when this
/// list is the only owner of its block, so that appending takes amortised constant time.
class PointList {
public:
    PointList() = default;
    PointList(std::initializer_list<Point> points) : PointList(std::vector<Point>(points)) {}
    explicit PointList(std::vector<Point> points);

    std::size_t size() const { return block_ ? block_->size() : 0; }
    bool isEmpty() const { return size() == 0; }
    const Point& operator[](std::size_t index) const { return (*block_)[index]; }
    std::span<const Point> span() const {
        return block_ ? std::span<const Point>(*block_) : std::span<const Point>();
    }
    auto begin() const { return span().begin(); }
    auto end() const { return span().end(); }

    void append(Point point);

    /// Frees memory kept ready for further points.
    void shrinkToFit();

    /// True when both share one block: a cheap "known equal".
    bool sharesWith(const PointList& other) const { return block_ == other.block_; }

    friend bool operator==(const PointList& a, const PointList& b);

private:
    std::vector<Point>& ownBlock();

    std::shared_ptr<std::vector<Point>> block_;
};

}  // namespace marlevo
