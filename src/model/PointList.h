#pragma once

#include "graphics/Point.h"
#include "graphics/Rect.h"
#include "model/IntrusivePtr.h"

#include <cstddef>
#include <initializer_list>
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

    std::size_t size() const { return block_ ? block_->points.size() : 0; }
    bool isEmpty() const { return size() == 0; }
    const Point& operator[](std::size_t index) const { return block_->points[index]; }
    std::span<const Point> span() const {
        return block_ ? std::span<const Point>(block_->points) : std::span<const Point>();
    }
    auto begin() const { return span().begin(); }
    auto end() const { return span().end(); }

    void append(Point point);

    /// Frees the spare capacity.
    void shrinkToFit();

    /// The smallest rectangle that holds every point, in constant time; all zero without points. A
    /// side is NaN if a coordinate along it is.
    Rect bounds() const;

    /// True if both share one block and so are equal. Takes constant time.
    bool sharesWith(const PointList& other) const { return block_ == other.block_; }

    friend bool operator==(const PointList& a, const PointList& b);

private:
    struct Block : RefCounted {
        explicit Block(std::vector<Point> initial);
        void stretchTo(Point point);

        std::vector<Point> points;  ///< never empty
        Point least;
        Point greatest;
    };

    IntrusivePtr<Block> block_;
};

}  // namespace marlevo
