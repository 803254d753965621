#pragma once

#include "graphics/Rect.h"
#include "model/IntrusivePtr.h"
#include "model/Stroke.h"
#include "model/StrokeSummary.h"
#include "model/StrokeTree.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <vector>

namespace marlevo {

/// The strokes of a layer: a sequence with value semantics whose copies share all that is
/// unchanged. A copy costs two pointers, a changed copy one path of nodes.
///
/// A tree of reference-counted nodes, 32 wide, whose leaves hold the strokes by pointer, and an
/// open leaf after them that is not yet in the tree. Nodes are changed in place if this list is
/// their only owner. Appending to the open leaf takes constant time although older copies share it:
/// each copy stores how many of the leaf's strokes are its own. Other changes, and finding a stroke
/// by its index, take time logarithmic in the size.
///
/// One list belongs to one thread at a time; copies may be used and changed on different threads.
/// Indices must be valid. References to strokes are valid until their list changes.
class StrokeList {
public:
    class Iterator;
    using value_type = Stroke;
    using const_iterator = Iterator;

    StrokeList() = default;
    explicit StrokeList(std::vector<Stroke> strokes);

    std::size_t size() const { return treeSize() + tailSize_; }
    bool isEmpty() const { return size() == 0; }
    const Stroke& operator[](std::size_t index) const;
    Iterator begin() const;
    Iterator end() const;

    /// Also frees the spare capacity of the stroke's points.
    void append(Stroke stroke);
    void erase(std::size_t at);
    void replace(std::size_t at, Stroke stroke);
    void clear() { *this = StrokeList(); }

    /// Applies `change` to the stroke.
    template <typename Change>
    void modify(std::size_t at, Change&& change) {
        Stroke stroke = (*this)[at];
        std::forward<Change>(change)(stroke);
        replace(at, std::move(stroke));
    }

    /// Of all strokes.
    StrokeSummary summary() const;

    /// Calls `visitor(index, stroke, its box)` in order for each stroke that paints something, or
    /// has a point, within `margin` of the area. May also call it for a stroke slightly further
    /// away. Stops, and returns false, when the visitor returns false. Reads boxes only, so the
    /// strokes themselves are not loaded into the processor's cache.
    template <typename Visitor>
    bool visitNear(const Rect& area, double margin, Visitor&& visitor) const {
        const stroke_tree::Search search(area, margin);
        return (!tree_ || stroke_tree::visit(*tree_, 0, search, visitor)) &&
               (!tail_ || stroke_tree::visit(*tail_, tailSize_, treeSize(), search, visitor));
    }

    /// True if both share all their strokes and so are equal. Takes constant time.
    bool sharesWith(const StrokeList& other) const {
        return tree_ == other.tree_ && tailSize_ == other.tailSize_ &&
               (tailSize_ == 0 || tail_ == other.tail_);
    }

private:
    friend struct StrokeDifference;

    std::size_t treeSize() const { return tree_ ? tree_->summary.count : 0; }
    std::span<const IntrusivePtr<stroke_tree::Record>> tail() const {
        if (tailSize_ == 0) return {};
        return {tail_->slots.data(), tailSize_};
    }
    std::span<const IntrusivePtr<stroke_tree::Record>> recordsFrom(std::size_t index) const;
    stroke_tree::Leaf& ownTail();

    IntrusivePtr<stroke_tree::Node> tree_;
    IntrusivePtr<stroke_tree::Leaf> tail_;  ///< the open leaf
    std::uint32_t tailSize_ = 0;            ///< strokes of this list in it; less than a full leaf
};

/// Visits a list in order. A change of the list invalidates it.
class StrokeList::Iterator {
public:
    using value_type = Stroke;
    using difference_type = std::ptrdiff_t;

    Iterator() = default;

    const Stroke& operator*() const { return (*record_)->stroke; }
    const Stroke* operator->() const { return &**this; }
    Iterator& operator++() {
        ++index_;
        if (++record_ == leafEnd_) enterLeaf();
        return *this;
    }
    Iterator operator++(int) {
        Iterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const Iterator& a, const Iterator& b) { return a.index_ == b.index_; }

private:
    friend class StrokeList;

    Iterator(const StrokeList& list, std::size_t index) : list_(&list), index_(index) {
        enterLeaf();
    }
    void enterLeaf();

    const StrokeList* list_ = nullptr;
    std::size_t index_ = 0;
    const IntrusivePtr<stroke_tree::Record>* record_ = nullptr;
    const IntrusivePtr<stroke_tree::Record>* leafEnd_ = nullptr;
};

inline StrokeList::Iterator StrokeList::begin() const { return {*this, 0}; }
inline StrokeList::Iterator StrokeList::end() const { return {*this, size()}; }
static_assert(std::forward_iterator<StrokeList::Iterator>);

}  // namespace marlevo
