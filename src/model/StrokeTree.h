#pragma once

#include "model/Ref.h"
#include "model/Stroke.h"
#include "model/StrokeSummary.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>

/// The nodes that StrokeList is made of; of no use to anybody else.
///
/// All leaves lie at the same depth. Nodes are only ever made by appending, which fills them, and
/// thinned by erasing, which removes those that become empty and leaves the others where they are:
/// what one erase touches is one path, and every other node stays shared.
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

/// Up to `fanOut` strokes. While it is the open end of a list it may be shared by versions of that
/// list which know different numbers of its strokes; its summary is then not yet used. A slot that
/// one version has filled is never written again, so the others need not know.
struct Leaf : Node {
    Leaf() : Node(0) {}
    Leaf(const Leaf& other) : Leaf(other, other.filled) { summary = other.summary; }

    /// The first `size` strokes of another leaf.
    Leaf(const Leaf& other, std::size_t size);

    std::span<const Ref<Record>> records() const { return {slots.data(), filled}; }

    /// Puts the record behind the first `known` ones unless the slot is taken or there is none.
    bool appendAfter(std::size_t known, const Ref<Record>& record);
    void replace(std::size_t at, Stroke stroke);
    void erase(std::size_t at);
    void truncate(std::size_t size);
    void summarise();

    std::atomic<std::size_t> filled = 0;
    std::array<Ref<Record>, fanOut> slots;

    /// Of the stroke in each slot. Side by side, so that a search looks at the memory of no stroke
    /// but those that matter.
    std::array<StrokeSummary, fanOut> summaries;
};

struct Branch : Node {
    explicit Branch(unsigned nodeHeight) : Node(nodeHeight) {}

    std::span<const Ref<Node>> nodes() const { return {children.data(), childCount}; }
    Ref<Node>& last() { return children[childCount - 1]; }
    const Ref<Node>& last() const { return children[childCount - 1]; }

    void append(Ref<Node> child) { children[childCount++] = std::move(child); }
    void erase(std::size_t at);
    void summarise();

    std::size_t childCount = 0;
    std::array<Ref<Node>, fanOut> children;
};

inline Leaf& asLeaf(Node& node) { return static_cast<Leaf&>(node); }
inline const Leaf& asLeaf(const Node& node) { return static_cast<const Leaf&>(node); }
inline Branch& asBranch(Node& node) { return static_cast<Branch&>(node); }
inline const Branch& asBranch(const Node& node) { return static_cast<const Branch&>(node); }

/// The strokes from an index to the end of their leaf.
std::span<const Ref<Record>> recordsFrom(const Node& root, std::size_t index);

/// Appends a leaf that is complete; the root may be absent.
void appendLeaf(Ref<Node>& root, Ref<Node> leaf);

/// Removes a stroke; the root is absent afterwards if that was the last.
void erase(Ref<Node>& root, std::size_t index);

void replace(Ref<Node>& root, std::size_t index, Stroke stroke);

/// Shows `visitor` the first `size` strokes of a leaf in order, leaving out those whose summary
/// `matters` refuses; `index` is that of the first one. Ends early, with false, when the visitor
/// answers false.
template <typename Predicate, typename Visitor>
bool visit(const Leaf& leaf, std::size_t size, std::size_t index, const Predicate& matters,
           Visitor& visitor) {
    for (std::size_t i = 0; i < size; ++i)
        if (matters(leaf.summaries[i]) && !visitor(index + i, leaf.slots[i]->stroke)) return false;
    return true;
}

/// The same for all strokes below a node; whole subtrees are left out by their summary.

template <typename Predicate, typename Visitor>
bool visit(const Node& node, std::size_t index, const Predicate& matters, Visitor& visitor) {
    if (!matters(node.summary)) return true;
    if (node.isLeaf()) return visit(asLeaf(node), node.summary.count, index, matters, visitor);
    for (const Ref<Node>& child : asBranch(node).nodes()) {
        if (!visit(*child, index, matters, visitor)) return false;
        index += child->summary.count;
    }
    return true;
}

}  // namespace marlevo::stroke_tree
