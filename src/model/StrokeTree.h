#pragma once

#include "model/FloatBox.h"
#include "model/IntrusivePtr.h"
#include "model/Stroke.h"
#include "model/StrokeSummary.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>

/// The nodes of StrokeList, for its use only.
///
/// All leaves are at the same depth. Appending creates nodes and fills them. Erasing removes nodes
/// that become empty and does not move strokes between nodes: it changes one path, and every other
/// node stays shared.
namespace marlevo::stroke_tree {

inline constexpr std::size_t fanOut = 32;

struct Record : RefCounted {
    explicit Record(Stroke initial) : stroke(std::move(initial)) {}
    Stroke stroke;
};

struct Node : RefCounted {
    explicit Node(unsigned nodeHeight) : height(nodeHeight) {}
    Node(const Node&) = default;
    virtual ~Node() = default;

    bool isLeaf() const { return height == 0; }

    const std::uint32_t height;  ///< levels below; a leaf's is 0
    StrokeSummary summary;       ///< of all strokes below
};

/// The areas that the strokes of a leaf paint, as a structure of arrays: a search reads little
/// memory, tests several strokes at a time, and loads only the strokes it finds.
struct LeafBoxes {
    std::array<float, fanOut> minX{};
    std::array<float, fanOut> maxX{};
    std::array<float, fanOut> minY{};
    std::array<float, fanOut> maxY{};

    LeafBoxes() {
        for (std::size_t i = 0; i < fanOut; ++i)
            set(i, {});
    }

    void set(std::size_t at, const FloatBox& box) {
        minX[at] = box.minX;
        minY[at] = box.minY;
        maxX[at] = box.maxX;
        maxY[at] = box.maxY;
    }

    FloatBox operator[](std::size_t at) const { return {minX[at], minY[at], maxX[at], maxY[at]}; }

    bool touches(std::size_t at, const FloatBox& area) const {
        return (isBeside(at, area) | isAboveOrBelow(at, area)) == 0;
    }

    /// Conservative: may return true when no box touches. Tests x only, which halves the memory
    /// read.
    bool mayTouch(const FloatBox& area) const {
        std::int32_t any = 0;
        for (std::size_t i = 0; i < fanOut; ++i)
            any |= 1 - isBeside(i, area);
        return any != 0;
    }

private:
    // Negated comparisons, so that NaN counts as touching. Integers without branches, so that the
    // compiler vectorises the loop.
    std::int32_t isBeside(std::size_t at, const FloatBox& area) const {
        return (minX[at] > area.maxX ? 1 : 0) | (maxX[at] < area.minX ? 1 : 0);
    }
    std::int32_t isAboveOrBelow(std::size_t at, const FloatBox& area) const {
        return (minY[at] > area.maxY ? 1 : 0) | (maxY[at] < area.minY ? 1 : 0);
    }
};

/// Up to `fanOut` strokes. As the open leaf of a list, versions of that list that have different
/// numbers of its strokes may share it; its summary is then unused. A slot that one version has
/// filled is never written again, so the other versions do not change.
struct Leaf : Node {
    Leaf() : Node(0) {}
    Leaf(const Leaf& other) : Leaf(other, other.filled) { summary = other.summary; }

    /// The first `size` strokes of another leaf.
    Leaf(const Leaf& other, std::size_t size);

    std::span<const IntrusivePtr<Record>> records() const { return {slots.data(), filled}; }

    /// Puts the record after the first `known` ones and returns true, unless that slot is taken or
    /// the leaf is full.
    bool appendAfter(std::size_t known, const IntrusivePtr<Record>& record);
    void replace(std::size_t at, Stroke stroke);
    void erase(std::size_t at);
    void truncate(std::size_t size);
    void summarise();

    /// Prefetches what a search reads first.
    void prefetch() const {
        constexpr std::size_t cacheLine = 64;
        const auto* const bytes = reinterpret_cast<const std::byte*>(&boxes);
        for (std::size_t at = 0; at < sizeof boxes.minX + sizeof boxes.maxX; at += cacheLine)
            __builtin_prefetch(bytes + at);
        __builtin_prefetch(&summary);
    }

    std::atomic<std::size_t> filled = 0;
    std::array<IntrusivePtr<Record>, fanOut> slots;
    LeafBoxes boxes;  ///< of the strokes in the slots
};

struct Branch : Node {
    explicit Branch(unsigned nodeHeight) : Node(nodeHeight) {}

    std::span<const IntrusivePtr<Node>> nodes() const { return {children.data(), childCount}; }
    IntrusivePtr<Node>& last() { return children[childCount - 1]; }
    const IntrusivePtr<Node>& last() const { return children[childCount - 1]; }

    void append(IntrusivePtr<Node> child) { children[childCount++] = std::move(child); }
    void erase(std::size_t at);
    void summarise();

    std::size_t childCount = 0;
    std::array<IntrusivePtr<Node>, fanOut> children;
};

inline Leaf& asLeaf(Node& node) { return static_cast<Leaf&>(node); }
inline const Leaf& asLeaf(const Node& node) { return static_cast<const Leaf&>(node); }
inline Branch& asBranch(Node& node) { return static_cast<Branch&>(node); }
inline const Branch& asBranch(const Node& node) { return static_cast<const Branch&>(node); }

/// The strokes from an index to the end of their leaf.
std::span<const IntrusivePtr<Record>> recordsFrom(const Node& root, std::size_t index);

/// Appends a leaf that is complete; the root may be absent.
void appendLeaf(IntrusivePtr<Node>& root, IntrusivePtr<Node> leaf);

/// Removes a stroke; the root is absent afterwards if that was the last.
void erase(IntrusivePtr<Node>& root, std::size_t index);

void replace(IntrusivePtr<Node>& root, std::size_t index, Stroke stroke);

/// The area that StrokeList::visitNear() searches.
struct Search {
    Search(const Rect& wanted, double within)
        : area(wanted), margin(within), box(FloatBox::around(wanted, within)) {}

    bool reaches(const StrokeSummary& strokes) const {
        return strokes.reaches(area, margin + strokes.maxLineWidth / 2);
    }

    Rect area;
    double margin;
    FloatBox box;
};

/// Calls `visitor` with those of the first `size` strokes of a leaf that are found, in order.
/// `index` is the first stroke's index in the list. Stops, and returns false, when the visitor
/// returns false.
template <typename Visitor>
bool visit(const Leaf& leaf, std::size_t size, std::size_t index, const Search& search,
           Visitor& visitor) {
    for (std::size_t i = 0; i < size; ++i)
        if (leaf.boxes.touches(i, search.box) &&
            !visitor(index + i, leaf.slots[i]->stroke, leaf.boxes[i]))
            return false;
    return true;
}

/// The number of leaves that a search prefetches ahead (measured).
inline constexpr std::size_t leavesAhead = 4;

/// The same for all strokes below a node. Skips whole subtrees by their summaries.
template <typename Visitor>
bool visit(const Node& node, std::size_t index, const Search& search, Visitor& visitor) {
    if (node.isLeaf()) {
        const Leaf& leaf = asLeaf(node);
        return !leaf.boxes.mayTouch(search.box) ||
               visit(leaf, leaf.summary.count, index, search, visitor);
    }
    if (!search.reaches(node.summary)) return true;
    const std::span<const IntrusivePtr<Node>> children = asBranch(node).nodes();
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (node.height == 1 && i + leavesAhead < children.size())
            asLeaf(*children[i + leavesAhead]).prefetch();
        if (!visit(*children[i], index, search, visitor)) return false;
        index += children[i]->summary.count;
    }
    return true;
}

}  // namespace marlevo::stroke_tree
